#include "replay/unit/describe_replay.h"

#include <fmt/format.h>

#include <chrono>
#include <system_error>

#include "base/checked.h"
#include "base/version.h"
#include "match/options/name_tables.h"

namespace vandrel {

namespace {

constexpr unsigned kilobyteShift = 10;

std::string recordingTime(const ReplayInfo& info) {
    if (!info.entry.has_value()) {
        return "";
    }
    std::error_code error;
    const auto time = info.entry->last_write_time(error);
    return error ? "" : fileTimeText(time);
}

}  // namespace

std::string fileTimeText(std::filesystem::file_time_type time) {
    using std::chrono::floor;
    const auto moment = std::chrono::file_clock::to_sys(time);
    const auto day = floor<std::chrono::days>(moment);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(floor<std::chrono::minutes>(moment - day));
    return fmt::format("{}/{}/{} {:02}:{:02}", static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                       static_cast<unsigned>(date.day()), clock.hours().count(), clock.minutes().count());
}

void describeReplay(std::ostream& out, const ReplayInfo& info) {
    out << info.number;
    if (info.errors.empty()) {
        out << " - " << recordingTime(info) << " - " << checkedAt(gameModeNames, info.gameMode).shortName << " - "
            << info.numPlayers << " players - " << versionText(info.version);
    } else {
        out << " - Error - select for details";
    }
    if (info.entry.has_value()) {
        out << " - " << (info.size >> kilobyteShift) << "kB";
    }
}

}  // namespace vandrel
