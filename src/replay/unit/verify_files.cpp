#include "replay/unit/verify_files.h"

#include <fmt/format.h>

#include <cerrno>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <system_error>

#include "replay/unit/gzip.h"
#include "replay/unit/streams.h"
#include "shell/assertion.h"
#include "shell/log.h"
#include "shell/replace_file.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

bool exists(const std::string& path) {
    std::error_code error;
    const bool found = std::filesystem::exists(path, error);
    if (error && error.value() != ENOENT && error.value() != ENOTDIR) {
        throw std::filesystem::filesystem_error("exists", path, error);
    }
    return found;
}

std::string readWholeFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    if (!file.is_open() || file.bad()) {
        throw std::runtime_error(fmt::format("File not open for reading: {}", path));
    }
    return std::move(bytes).str();
}

// Whether the text has its last line, which is written when the round is over.
bool endsWithMark(const std::string& text) {
    return text == "END\n" || text.ends_with("\nEND\n");
}

VerifyInput readCompressed(const std::string& path, std::size_t limit) {
    logText(fmt::format("Opening {}\n", path));
    const std::string bytes = readWholeFile(path);
    logText("Decompressing\n");
    GzipContents contents = gzipUnpack(bytes, limit);
    logText("Writing decompressed data to replayInputVerify\n");
    VerifyInput input;
    if (!contents.whole) {
        input.flaw = fmt::format("{} is cut short", path);
    } else if (contents.left > 0) {
        input.flaw = fmt::format("{} has {} bytes behind its text", path, contents.left);
    }
    input.text = std::make_shared<std::istringstream>(std::move(contents.bytes));
    return input;
}

// The plain form, if it is there and whole.
std::shared_ptr<std::istream> openWholePlain(const std::string& path) {
    if (!exists(path)) {
        return nullptr;
    }
    std::string text = readWholeFile(path);
    return endsWithMark(text) ? std::make_shared<std::istringstream>(std::move(text)) : nullptr;
}

// The plain form instead of a compressed one of which `reason` says what is wrong; null if that is not whole.
VerifyInput passOver(const std::string& compressed, const std::string& plain, const std::string& reason) {
    VerifyInput input;
    input.text = openWholePlain(plain);
    if (input.text != nullptr) {
        input.note = fmt::format("{}: {}; {} is used instead", compressed, reason, plain);
        logText(input.note + "\n");
    }
    return input;
}

}  // namespace

std::string plainVerifyPath(const std::string& replayPath) {
    return replayPath + ".verify";
}

std::string compressedVerifyPath(const std::string& replayPath) {
    return replayPath + ".verifyZ";
}

VerifyInput readVerifyInput(const std::string& replayPath, std::size_t limit) {
    if (!verifyEnabled) {
        return {};
    }
    const std::string compressed = compressedVerifyPath(replayPath);
    const std::string plain = plainVerifyPath(replayPath);
    if (exists(compressed)) {
        try {
            VerifyInput input = readCompressed(compressed, limit);
            const bool isEmpty = input.text->peek() == std::istream::traits_type::eof();
            input.text->clear();
            VerifyInput whole = isEmpty ? passOver(compressed, plain, "is empty") : VerifyInput{};
            return whole.text != nullptr ? std::move(whole) : std::move(input);
        } catch (const std::runtime_error& failure) {
            VerifyInput whole = passOver(compressed, plain, failure.what());
            if (whole.text == nullptr) {
                throw;
            }
            return whole;
        }
    }
    VerifyInput input;
    if (exists(plain)) {
        logText(fmt::format("Opening {}\n", plain));
        input.text = std::make_shared<std::istringstream>(readWholeFile(plain));
    }
    return input;
}

std::shared_ptr<std::istream> openVerifyInput(const std::string& replayPath) {
    return readVerifyInput(replayPath).text;
}

void finishVerifyFile(const std::string& replayPath, std::ofstream& outputVerify) {
    writeMarker(&outputVerify, "END\n");
    flushWritten(&outputVerify);
    outputVerify.close();
    const std::string plain = plainVerifyPath(replayPath);
    const std::string compressed = compressedVerifyPath(replayPath);
    logText("Save compressed verify file\n");
    const std::string str = readWholeFile(plain);
    logText("Compressing\n");
    replaceFile(compressed, gzipCompress(str));
    logText("Done\n");
    logText("Test decompressed replay against original verify text\n");
    const std::string decomp = gzipDecompress(readWholeFile(compressed));
    VANDREL_CHECK(str == decomp, "str == decomp");
    logText("Delete original verify file\n");
    std::error_code error;
    std::filesystem::remove(plain, error);
    if (error) {
        throw std::filesystem::filesystem_error("remove", plain, error);
    }
}

}  // namespace vandrel
