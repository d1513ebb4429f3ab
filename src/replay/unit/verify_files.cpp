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

void writeWholeFile(const std::string& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::out | std::ios::binary);
    if (!file.is_open()) {  // the text of a failed write would hold all the bytes
        throw std::runtime_error(fmt::format("File not open for writing: {}", path));
    }
    writeMarker(&file, bytes);
    flushWritten(&file);
}

}  // namespace

std::string plainVerifyPath(const std::string& replayPath) {
    return replayPath + ".verify";
}

std::string compressedVerifyPath(const std::string& replayPath) {
    return replayPath + ".verifyZ";
}

std::shared_ptr<std::istream> openVerifyInput(const std::string& replayPath) {
    if (!verifyEnabled) {
        return nullptr;
    }
    const std::string compressed = compressedVerifyPath(replayPath);
    if (exists(compressed)) {
        logText(fmt::format("Opening {}\n", compressed));
        const std::string bytes = readWholeFile(compressed);
        logText("Decompressing\n");
        std::string text = gzipDecompress(bytes);
        logText("Writing decompressed data to replayInputVerify\n");
        return std::make_shared<std::istringstream>(std::move(text));
    }
    const std::string plain = plainVerifyPath(replayPath);
    if (exists(plain)) {
        logText(fmt::format("Opening {}\n", plain));
        return std::make_shared<std::istringstream>(readWholeFile(plain));
    }
    return nullptr;
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
    writeWholeFile(compressed, gzipCompress(str));
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
