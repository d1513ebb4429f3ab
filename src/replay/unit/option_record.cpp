#include "replay/unit/option_record.h"

#include <utility>

#include "base/version.h"
#include "replay/unit/field_check.h"
#include "replay/unit/streams.h"

namespace vandrel {

namespace {

constexpr std::string_view optionsMarker = "@@@";
constexpr int smallestSide = 5;
constexpr int largestSide = 127;
constexpr int highestMultiplier = 100;
constexpr int lastRecordWithEarlyTime = replayVersion(0, 0, 4);

struct Range {
    int low;
    int high;
};
constexpr Range anyByte{-128, 127};
constexpr Range anyUnsignedByte{0, 255};

// Since when a field is stored. `absent` is what it was before.
template <class Value>
struct Since {
    int version;
    Value absent;
};

int valueOf(int field) {
    return field;
}
int valueOf(const std::optional<int>& field) {
    return field.value();
}
int valueOf(GameMode field) {
    return static_cast<int>(field);
}

void assign(int& field, int value) {
    field = value;
}
void assign(std::optional<int>& field, int value) {
    field = value;
}
void assign(GameMode& field, int value) {
    field = static_cast<GameMode>(value);
}

// The two directions. The writer always writes the newest layout, so it looks at no version.
class FieldWriter {
  public:
    explicit FieldWriter(std::ostream* stream) : stream_(stream) {}

    template <class Field>
    void byte(std::string_view, Field& field, Range, std::optional<Since<int>> = {}) {
        writeByte(stream_, valueOf(field));
    }
    template <class Field>
    void number(std::string_view, Field& field, std::optional<Since<int>> = {}) {
        writeInt(stream_, valueOf(field));
    }
    void number(std::string_view, int& field, Range, std::optional<Since<int>> = {}) { writeInt(stream_, field); }
    void flag(std::string_view, bool& field, std::optional<Since<bool>> = {}) { writeBool(stream_, field); }
    void marker(int) { writeMarker(stream_, optionsMarker); }
    bool storesEarlyTime() const { return false; }

  private:
    std::ostream* stream_;
};

class FieldReader {
  public:
    FieldReader(std::istream* stream, int version) : stream_(stream), version_(version) {}

    template <class Field>
    void byte(std::string_view name, Field& field, Range range, std::optional<Since<int>> since = {}) {
        if (isAbsent(since)) {
            assign(field, since->absent);
            return;
        }
        const int value = range.high > anyByte.high ? readByte(stream_) : readSignedByte(stream_);
        assign(field, checkedField(name, value, range.low, range.high));
    }
    template <class Field>
    void number(std::string_view name, Field& field, std::optional<Since<int>> since = {}) {
        assign(field, isAbsent(since) ? since->absent : checkedFrames(name, readInt(stream_)));
    }
    void number(std::string_view name, int& field, Range range, std::optional<Since<int>> since = {}) {
        field = isAbsent(since) ? since->absent : checkedField(name, readInt(stream_), range.low, range.high);
    }
    void flag(std::string_view, bool& field, std::optional<Since<bool>> since = {}) {
        field = isAbsent(since) ? since->absent : readBool(stream_);
    }
    void marker(int since) {
        if (version_ >= since) {
            readMarker(stream_, optionsMarker);
        }
    }
    bool storesEarlyTime() const { return version_ <= lastRecordWithEarlyTime; }

  private:
    template <class Value>
    bool isAbsent(const std::optional<Since<Value>>& since) const {
        return since.has_value() && version_ < since->version;
    }

    std::istream* stream_;
    int version_;
};

// Lists the fields as they stand.
class FieldLister {
  public:
    std::vector<StoredOption> fields;

    template <class Field>
    void byte(std::string_view name, Field& field, Range, std::optional<Since<int>> = {}) {
        fields.push_back({name, valueOf(field), false});
    }
    template <class Field>
    void number(std::string_view name, Field& field, std::optional<Since<int>> = {}) {
        fields.push_back({name, valueOf(field), false});
    }
    void number(std::string_view name, int& field, Range, std::optional<Since<int>> = {}) {
        fields.push_back({name, field, false});
    }
    void flag(std::string_view name, bool& field, std::optional<Since<bool>> = {}) {
        fields.push_back({name, field ? 1 : 0, true});
    }
    void marker(int) {}
    bool storesEarlyTime() const { return false; }
};

using SinceInt = Since<int>;
using SinceBool = Since<bool>;

template <class Fields>
void ruleFields(Fields& fields, GameOptions& options) {
    fields.flag("shrinkingOn", options.shrinkingOn);
    fields.byte("initialSpeed", options.initialSpeed, anyByte);
    fields.byte("snailSeconds", options.snailSeconds, anyByte);
    fields.flag("remoteHoldToArm", options.remoteHoldToArm);
    fields.flag("remoteExplosionDelay", options.remoteExplosionDelay);
    fields.flag("rocketExplosionDelay", options.rocketExplosionDelay);
    fields.flag("startAsSnake", options.startAsSnake, SinceBool{replayVersion(0, 0, 10), false});
    fields.flag("startWithShield", options.startWithShield, SinceBool{replayVersion(0, 95, 19), false});
    fields.byte("speedCap", options.speedCap, anyByte, SinceInt{replayVersion(0, 95, 24), 8});
    fields.byte("shrinkSpeedFrames", options.shrinkSpeedFrames, anyByte);
    fields.byte("shrinkStyleResolved", options.shrinkStyleResolved, anyUnsignedByte,
                SinceInt{replayVersion(0, 95, 25), 1});
    if (fields.storesEarlyTime()) {
        fields.number("timeBeforeShrinkingFrames", options.timeBeforeShrinkingFrames);
    }
}

template <class Fields>
void modeFields(Fields& fields, GameOptions& options) {
    constexpr int everythingFrom = replayVersion(1, 0, 9);
    fields.byte("gameMode", options.gameMode, Range{0, gameModeCount - 1}, SinceInt{replayVersion(0, 0, 1), 0});
    fields.flag("singleFlag", options.singleFlag, SinceBool{replayVersion(0, 0, 7), true});
    fields.flag("everythingBattleRoyale", options.everythingBattleRoyale, SinceBool{everythingFrom, false});
    fields.flag("everythingCTF", options.everythingCTF, SinceBool{everythingFrom, false});
    fields.flag("everythingDeathmatch", options.everythingDeathmatch, SinceBool{everythingFrom, false});
    fields.flag("everythingKotH", options.everythingKotH, SinceBool{everythingFrom, false});
    fields.flag("everythingSnakeHunter", options.everythingSnakeHunter, SinceBool{everythingFrom, false});
    fields.byte("playerKillPoints", options.playerKillPoints, anyByte, SinceInt{everythingFrom, 1});
    fields.byte("snakeHurtPoints", options.snakeHurtPoints, anyByte, SinceInt{everythingFrom, 1});
    fields.byte("snakeKillPoints", options.snakeKillPoints, anyByte, SinceInt{everythingFrom, 1});
    fields.byte("flagCapturePoints", options.flagCapturePoints, anyByte, SinceInt{everythingFrom, 1});
}

template <class Fields>
void snakeFields(Fields& fields, GameOptions& options) {
    constexpr int snakesFrom = replayVersion(0, 95, 13);
    fields.number("snakeCount", options.snakeCount, SinceInt{snakesFrom, notResolved});
    fields.number("snakesAtOnce", options.snakesAtOnce, SinceInt{snakesFrom, notResolved});
    fields.number("snakePreparationFrames", options.snakePreparationFrames, SinceInt{snakesFrom, notResolved});
    fields.number("snakeSpawnFrames", options.snakeSpawnFrames, SinceInt{snakesFrom, notResolved});
    fields.flag("snakeHunterRespawn", options.snakeHunterRespawn, SinceBool{replayVersion(0, 95, 22), false});
    fields.byte("snakeSpeed", options.snakeSpeed, anyByte, SinceInt{replayVersion(0, 95, 23), 3});
}

template <class Fields>
void wallFields(Fields& fields, RespawnWallOptions& walls) {
    constexpr int respawningWallsFrom = replayVersion(0, 96, 7);
    fields.flag("respawnWallsResolved.enabled", walls.enabled, SinceBool{respawningWallsFrom, false});
    fields.number("respawnWallsResolved.interval", walls.interval, SinceInt{respawningWallsFrom, 0});
    fields.number("respawnWallsResolved.startBelow", walls.startBelow, SinceInt{respawningWallsFrom, 0});
    fields.number("respawnWallsResolved.stopAt", walls.stopAt, SinceInt{respawningWallsFrom, 0});
    fields.number("respawnWallsResolved.minFreeSquares", walls.minFreeSquares, SinceInt{respawningWallsFrom, 0});
}

template <class Fields>
void timeFields(Fields& fields, GameOptions& options) {
    constexpr int stunTimesFrom = replayVersion(0, 97, 8);
    fields.byte("respawnTime", options.respawnTime, anyByte, SinceInt{replayVersion(0, 96, 12), 10});
    fields.flag("minorStunEnabled", options.minorStunEnabled, SinceBool{replayVersion(0, 97, 5), false});
    fields.byte("snakeStartLength", options.snakeStartLength, anyByte, SinceInt{replayVersion(0, 97, 6), 4});
    fields.number("majorStunTime", options.majorStunTime, SinceInt{stunTimesFrom, 180});
    fields.number("minorStunTime", options.minorStunTime, SinceInt{stunTimesFrom, 180});
    fields.number("frameMultiplier", options.frameMultiplier, Range{1, highestMultiplier},
                  SinceInt{replayVersion(0, 97, 12), 1});
    fields.number("auctionInterval", options.auctionInterval, SinceInt{replayVersion(1, 0, 2), 0});
}

// All fields behind the version, in the order of the file.
template <class Fields>
void optionFields(Fields& fields, GameOptions& options, Square& arenaSize) {
    fields.number("updaterate", options.updaterate, Range{1, highestUpdateRate}, SinceInt{replayVersion(0, 97, 1), 60});
    fields.byte("numPlayers", options.numPlayers, Range{1, mostPlayers});
    fields.byte("grid_squares_x", arenaSize.x, Range{smallestSide, largestSide});
    fields.byte("grid_squares_y", arenaSize.y, Range{smallestSide, largestSide});
    ruleFields(fields, options);
    modeFields(fields, options);
    snakeFields(fields, options);
    fields.flag("bombPowerupResetsBombType", options.bombPowerupResetsBombType,
                SinceBool{replayVersion(0, 96, 5), false});
    wallFields(fields, options.respawnWallsResolved);
    timeFields(fields, options);
    fields.marker(replayVersion(0, 95, 13));
}

}  // namespace

void writeOptionRecord(std::ostream* stream, Square arenaSize) {
    writeInt(stream, replayOutputVersion);
    FieldWriter fields(stream);
    optionFields(fields, gameOptions, arenaSize);
}

std::string versionRefusal(int version) {
    if (version < 0) {
        return "Invalid replay version: " + versionText(version);
    }
    return version > replayOutputVersion ? "Replay from future version of game: " + versionText(version) : "";
}

std::optional<OptionRecord> readOptionRecord(std::istream* stream, int& version) {
    version = readInt(stream);
    if (!versionRefusal(version).empty()) {
        return std::nullopt;
    }
    OptionRecord record;
    record.version = version;
    FieldReader fields(stream, version);
    optionFields(fields, record.options, record.arenaSize);
    return record;
}

std::optional<GameOptions> readGameOptions(std::istream& stream, int& version) {
    auto record = readOptionRecord(&stream, version);
    if (!record) {
        return std::nullopt;
    }
    return record->options;
}

std::vector<StoredOption> listStoredOptions(const OptionRecord& record) {
    OptionRecord copy = record;
    FieldLister lister;
    optionFields(lister, copy.options, copy.arenaSize);
    return std::move(lister.fields);
}

}  // namespace vandrel
