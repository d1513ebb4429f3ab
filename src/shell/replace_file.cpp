#include "shell/replace_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace vandrel {

namespace {

bool flushToDisk(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        return false;
    }
    const bool flushed = fsync(file) == 0;
    const int reason = errno;
    close(file);
    errno = reason;
    return flushed;
}

// The file that the path means in the end; itself if it is no link.
std::filesystem::path targetOf(const std::string& path) {
    std::error_code error;
    const std::filesystem::path target = std::filesystem::canonical(path, error);
    return error ? std::filesystem::path(path) : target;
}

}  // namespace

void replaceFile(const std::string& path, const std::function<bool(const std::string& beside)>& write) {
    const std::filesystem::path target = targetOf(path);
    const std::string beside = target.string() + ".new";
    errno = 0;
    std::error_code error;
    if (!write(beside) || !flushToDisk(beside)) {
        error.assign(errno != 0 ? errno : EIO, std::generic_category());
    } else {
        const auto permissions = std::filesystem::status(target, error).permissions();
        if (!error) {
            std::filesystem::permissions(beside, permissions, error);
        }
        std::filesystem::rename(beside, target, error);
    }
    if (error) {
        std::error_code ignored;
        std::filesystem::remove(beside, ignored);
        throw std::system_error(error, "cannot write " + path);
    }
}

void replaceFile(const std::string& path, std::string_view bytes) {
    replaceFile(path, [&](const std::string& beside) {
        std::ofstream file(beside, std::ios::binary | std::ios::trunc);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        file.close();
        return file.good();
    });
}

}  // namespace vandrel
