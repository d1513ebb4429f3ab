#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <utility>

#include "audio/synth/signal.h"
#include "audio/tunes/instruments.h"
#include "audio/tunes/score.h"
#include "audio/tunes/steps.h"

namespace vandrel::art {

namespace {

struct Bar {
    std::string text;
    int line;
};

struct Part {
    int bars = 0;
    std::vector<Bar> chords;
    std::map<std::string, std::vector<Bar>> lines;
    std::map<std::string, double> levels;
    int line = 0;
};

std::vector<std::string> wordsOf(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), std::istream_iterator<std::string>()};
}

class ScoreParser {
  public:
    Score parse(std::string_view text) {
        std::istringstream stream{std::string(text)};
        for (std::string line; std::getline(stream, line);) {
            ++line_;
            // A sharp stands inside a word, a remark behind a space.
            if (const auto remark = line.find(" #"); remark != std::string::npos) {
                line.erase(remark);
            }
            const auto words = wordsOf(line);
            if (!words.empty() && words.front().front() != '#') {
                readLine(line, words);
            }
        }
        if (form_.empty()) {
            throw ScoreError(line_, "the score has no form");
        }
        unfold();
        return std::move(score_);
    }

  private:
    void readLine(const std::string& line, const std::vector<std::string>& words) {
        const std::string& first = words.front();
        if (first == "part") {
            beginPart(words);
        } else if (first == "form") {
            form_.assign(words.begin() + 1, words.end());
            formLine_ = line_;
        } else if (part_ != nullptr) {
            readPartLine(line, words);
        } else if (first == "voice" || first == "drum") {
            readVoice(words);
        } else {
            readHeader(words, line);
        }
    }

    void readHeader(const std::vector<std::string>& words, const std::string& line) {
        const std::string& name = words.front();
        if (name == "title") {
            const auto start = line.find_first_not_of(" \t", line.find("title") + 5);
            score_.title = start == std::string::npos ? "" : line.substr(start);
        } else if (name == "tempo") {
            score_.tempo = number(words, 1, 30.0, 300.0);
        } else if (name == "beats") {
            score_.beats = static_cast<int>(number(words, 1, 1.0, 16.0));
        } else if (name == "swing") {
            score_.swingSteps = static_cast<int>(number(words, 1, 4.0, 32.0));
            score_.swing = number(words, 2, 0.0, 0.6);
        } else if (name == "echo") {
            score_.echoBeats = number(words, 1, 0.1, 8.0);
            score_.echoFeedback = number(words, 2, 0.0, 0.9);
        } else if (name == "room") {
            score_.roomHalfLife = number(words, 1, 0.01, 2.0);
            score_.roomBrightness = number(words, 2, 200.0, 20000.0);
        } else if (name == "loudness") {
            score_.loudness = number(words, 1, -40.0, -8.0);
        } else {
            throw ScoreError(line_, fmt::format("\"{}\" is not known here", name));
        }
    }

    // voice NAME INSTRUMENT [low c3] [gain -3] [pan -20] [room 20] [echo 10] [wide 50] [loose 8] [duck 3]
    void readVoice(const std::vector<std::string>& words) {
        if (words.size() < 3) {
            throw ScoreError(line_, "a voice needs a name and an instrument");
        }
        ScoreVoice voice{.name = words[1], .instrument = words[2], .drum = words[0] == "drum"};
        if (voiceNamed(voice.name) != nullptr || voice.name == "chords" || voice.name == "level") {
            throw ScoreError(line_, fmt::format("the name \"{}\" is taken", voice.name));
        }
        if (findInstrument(voice.instrument) == nullptr) {
            throw ScoreError(line_, fmt::format("there is no instrument \"{}\"", voice.instrument));
        }
        const std::map<std::string, std::pair<double*, double>> settings{
            {"gain", {&voice.decibels, 1.0}}, {"pan", {&voice.pan, 0.01}},   {"room", {&voice.room, 0.01}},
            {"echo", {&voice.echo, 0.01}},    {"wide", {&voice.wide, 0.01}}, {"loose", {&voice.loose, 0.001}},
            {"duck", {&voice.duck, 1.0}}};
        for (std::size_t i = 3; i < words.size(); i += 2) {
            if (words[i] == "low") {
                const auto pitch = i + 1 < words.size() ? pitchNamed(words[i + 1]) : std::nullopt;
                if (!pitch) {
                    throw ScoreError(line_, "\"low\" needs a note");
                }
                voice.low = *pitch;
            } else if (const auto setting = settings.find(words[i]); setting != settings.end()) {
                *setting->second.first = number(words, i + 1, -100.0, 100.0) * setting->second.second;
            } else {
                throw ScoreError(line_, fmt::format("a voice has no setting \"{}\"", words[i]));
            }
        }
        score_.voices.push_back(std::move(voice));
    }

    // part NAME BARS, or: part NAME like OTHER
    void beginPart(const std::vector<std::string>& words) {
        if (words.size() < 3) {
            throw ScoreError(line_, "a part needs a name and its number of bars");
        }
        if (parts_.contains(words[1])) {
            throw ScoreError(line_, fmt::format("there are two parts \"{}\"", words[1]));
        }
        Part part;
        if (words[2] == "like") {
            const auto other = words.size() == 4 ? parts_.find(words[3]) : parts_.end();
            if (other == parts_.end()) {
                throw ScoreError(line_, "\"like\" needs the name of a part above");
            }
            part = other->second;
        } else {
            part.bars = static_cast<int>(number(words, 2, 1.0, 64.0));
        }
        part.line = line_;
        part_ = &parts_.emplace(words[1], std::move(part)).first->second;
        current_ = nullptr;
    }

    // NAME | bar | bar |   or a line that goes on:   | bar | bar |   or: NAME silent   or: level NAME DECIBELS
    void readPartLine(const std::string& line, const std::vector<std::string>& words) {
        const std::string& first = words.front();
        if (first == "level") {
            if (words.size() != 3 || voiceNamed(words[1]) == nullptr) {
                throw ScoreError(line_, "\"level\" needs a voice and decibels");
            }
            part_->levels[words[1]] = number(words, 2, -60.0, 20.0);
            return;
        }
        if (first.front() != '|') {
            if (first != "chords" && voiceNamed(first) == nullptr) {
                throw ScoreError(line_, fmt::format("there is no voice \"{}\"", first));
            }
            current_ = first == "chords" ? &part_->chords : &part_->lines[first];
            current_->clear();
            if (words.size() == 2 && words[1] == "silent") {
                current_ = nullptr;
                return;
            }
        }
        const auto firstBarLine = line.find('|');
        if (current_ == nullptr || firstBarLine == std::string::npos || words.back().back() != '|') {
            throw ScoreError(line_, "bars stand between bar lines, after the name of a voice");
        }
        for (auto from = firstBarLine + 1; from < line.size();) {
            const auto to = line.find('|', from);
            if (to == std::string::npos) {
                break;
            }
            appendBarText(line.substr(from, to - from));
            from = to + 1;
        }
    }

    void appendBarText(const std::string& text) {
        if (wordsOf(text) == std::vector<std::string>{"%"}) {
            if (current_->empty()) {
                throw ScoreError(line_, "there is no bar to repeat");
            }
            current_->push_back({current_->back().text, line_});
        } else {
            current_->push_back({text, line_});
        }
    }

    // A line that is shorter than its part is repeated; it has to fill the part evenly.
    static void checkFill(const std::vector<Bar>& bars, int wanted) {
        const auto count = static_cast<int>(bars.size());
        if (count > 0 && wanted % count != 0) {
            throw ScoreError(bars.back().line, fmt::format("{} bars do not fill a part of {}", count, wanted));
        }
    }

    static std::vector<PlacedChord> chordsOf(const Part& part) {
        checkFill(part.chords, part.bars);
        std::vector<PlacedChord> result;
        for (int bar = 0; bar < part.bars && !part.chords.empty(); ++bar) {
            const Bar& text = part.chords[static_cast<std::size_t>(bar) % part.chords.size()];
            const auto symbols = wordsOf(text.text);
            for (std::size_t i = 0; i < symbols.size(); ++i) {
                const auto chord = chordNamed(symbols[i]);
                if (!chord) {
                    throw ScoreError(text.line, fmt::format("\"{}\" is not a chord", symbols[i]));
                }
                result.push_back({bar + static_cast<double>(i) / static_cast<double>(symbols.size()), *chord});
            }
        }
        return result;
    }

    // Plays the parts in the order of the form into the voices.
    void unfold() {
        for (const std::string& name : form_) {
            const auto found = parts_.find(name);
            if (found == parts_.end()) {
                throw ScoreError(formLine_, fmt::format("there is no part \"{}\"", name));
            }
            const Part& part = found->second;
            const auto chords = chordsOf(part);
            for (ScoreVoice& voice : score_.voices) {
                const auto line = part.lines.find(voice.name);
                if (line != part.lines.end() && !line->second.empty()) {
                    unfoldLine(voice, part, line->second, chords);
                }
            }
            score_.bars += part.bars;
        }
    }

    void unfoldLine(ScoreVoice& voice, const Part& part, const std::vector<Bar>& bars,
                    const std::vector<PlacedChord>& chords) {
        checkFill(bars, part.bars);
        std::vector<ScoreNote> notes;
        for (int bar = 0; bar < part.bars; ++bar) {
            const Bar& text = bars[static_cast<std::size_t>(bar) % bars.size()];
            appendBar(notes, text.text, bar, voice, chords, text.line);
        }
        const auto level = part.levels.find(voice.name);
        for (ScoreNote& note : notes) {
            note.start += score_.bars;
            note.decibels = level == part.levels.end() ? 0.0 : level->second;
            voice.notes.push_back(note);
        }
    }

    double number(const std::vector<std::string>& words, std::size_t place, double least, double most) const {
        double value = 0.0;
        if (place < words.size()) {
            const std::string& word = words[place];
            const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
            if (error == std::errc() && end == word.data() + word.size() && value >= least && value <= most) {
                return value;
            }
        }
        throw ScoreError(line_, fmt::format("\"{}\" needs a number from {} to {}", words[place - 1], least, most));
    }

    const ScoreVoice* voiceNamed(const std::string& name) const {
        const auto found = std::find_if(score_.voices.begin(), score_.voices.end(),
                                        [&](const ScoreVoice& voice) { return voice.name == name; });
        return found == score_.voices.end() ? nullptr : &*found;
    }

    Score score_;
    std::map<std::string, Part> parts_;
    std::vector<std::string> form_;
    Part* part_ = nullptr;
    std::vector<Bar>* current_ = nullptr;  // where a line that begins with a bar line goes on
    int line_ = 0;
    int formLine_ = 0;
};

}  // namespace

ScoreError::ScoreError(int line, const std::string& what)
    : std::runtime_error(fmt::format("line {}: {}", line, what)) {}

std::size_t Score::frames() const {
    return framesIn(bars * beats * 60.0 / tempo);
}

Score parseScore(std::string_view text) {
    return ScoreParser().parse(text);
}

Score readScore(const std::filesystem::path& path) {
    std::ifstream file(path);
    if (!file) {
        throw std::runtime_error(fmt::format("cannot read {}", path.string()));
    }
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    try {
        return parseScore(text);
    } catch (const ScoreError& error) {
        throw std::runtime_error(fmt::format("{}, {}", path.string(), error.what()));
    }
}

}  // namespace vandrel::art
