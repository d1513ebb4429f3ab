#include "replay/tool/state_digest.h"

#include <fmt/format.h>
#include <zlib.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "replay/unit/gzip.h"

namespace vandrel {

namespace {

constexpr std::size_t largestDigest = 100'000'000;  // bytes unpacked: eight hours at 144 updates a second

// The finaliser of SplitMix64, which spreads each bit over all others.
constexpr std::uint64_t mixed(std::uint64_t bits) {
    bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EBU;
    return bits ^ (bits >> 31);
}

std::uint64_t hashOf(const StateField& field) {
    const auto first = static_cast<std::uint32_t>(field.first);
    const auto second = static_cast<std::uint32_t>(field.second);
    const std::uint64_t place = mixed(field.nameHash + (std::uint64_t{first} << 32 | second));
    return mixed(place + static_cast<std::uint64_t>(field.value));
}

std::string head() {
    return fmt::format("vandrel-digest 1\n{}\nreplay ", fmt::join(stateGroupNames, ","));
}

constexpr std::size_t checksumDigits = 8;

std::string readWholeFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    if (!file) {
        throw std::runtime_error(fmt::format("{} cannot be read", path));
    }
    return std::move(bytes).str();
}

// Takes the head with its checksum off `bytes`.
std::uint32_t takeHead(std::string_view& bytes) {
    const std::string expected = head();
    std::uint32_t checksum = 0;
    const std::string_view digits = bytes.substr(std::min(expected.size(), bytes.size()), checksumDigits);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), checksum, 16);
    const std::size_t length = expected.size() + checksumDigits + 1;
    if (!bytes.starts_with(expected) || error != std::errc() || end != digits.data() + checksumDigits ||
        bytes.size() < length || bytes[length - 1] != '\n') {
        throw std::runtime_error("is no digest that this version reads");
    }
    bytes.remove_prefix(length);
    return checksum;
}

}  // namespace

// A sum, so that the order in which the fields are visited does not matter.
StateDigest digestOf(const Game& game) {
    std::array<std::uint64_t, stateGroupNames.size()> sums{};
    visitState(game, [&](const StateField& field) { sums[static_cast<std::size_t>(field.group)] += hashOf(field); });
    StateDigest digest{};
    for (std::size_t group = 0; group < sums.size(); ++group) {
        digest[group] = static_cast<std::uint16_t>(mixed(sums[group]));
    }
    return digest;
}

std::string differingGroups(const StateDigest& a, const StateDigest& b) {
    std::vector<std::string_view> names;
    for (std::size_t group = 0; group < a.size(); ++group) {
        if (a[group] != b[group]) {
            names.push_back(stateGroupNames[group]);
        }
    }
    return fmt::format("{}", fmt::join(names, ", "));
}

std::string packDigest(const RoundDigest& digest) {
    std::string bytes = fmt::format("{}{:08x}\n", head(), digest.replayChecksum);
    for (std::size_t group = 0; group < stateGroupNames.size(); ++group) {
        for (const StateDigest& update : digest.updates) {
            bytes.push_back(static_cast<char>(update[group] & 0xFFU));
            bytes.push_back(static_cast<char>(update[group] >> 8U));
        }
    }
    return gzipCompress(bytes);
}

RoundDigest unpackDigest(std::string_view file) {
    const std::string unpacked = gzipDecompress(file, largestDigest);
    std::string_view bytes = unpacked;
    RoundDigest digest;
    digest.replayChecksum = takeHead(bytes);
    const std::size_t updates = bytes.size() / sizeof(StateDigest);
    if (updates * sizeof(StateDigest) != bytes.size()) {
        throw std::runtime_error("breaks off");
    }
    const auto byteAt = [&](std::size_t place) { return static_cast<unsigned char>(bytes[place]); };
    digest.updates.resize(updates);
    for (std::size_t i = 0; i < updates; ++i) {
        for (std::size_t group = 0; group < stateGroupNames.size(); ++group) {
            const std::size_t place = 2 * (group * updates + i);
            digest.updates[i][group] = static_cast<std::uint16_t>(byteAt(place) | byteAt(place + 1) << 8);
        }
    }
    return digest;
}

std::uint32_t checksumOf(const std::string& path) {
    const std::string bytes = readWholeFile(path);
    return static_cast<std::uint32_t>(crc32_z(0, reinterpret_cast<const Bytef*>(bytes.data()), bytes.size()));
}

std::string digestPath(const std::string& replayPath) {
    return replayPath + ".digest";
}

DigestCheck::DigestCheck(const std::string& replayPath) : replayPath_(replayPath) {
    const std::string path = digestPath(replayPath);
    if (!std::filesystem::exists(path)) {
        return;
    }
    const std::string file = readWholeFile(path);
    try {
        digest_ = unpackDigest(file);
    } catch (const std::exception& failure) {
        throw std::runtime_error(fmt::format("{}: {}", path, failure.what()));
    }
}

void DigestCheck::compare(const Game& game) {
    if (!digest_.has_value()) {
        return;
    }
    if (update_ >= digest_->updates.size()) {
        throw std::runtime_error(fmt::format("the digest ends before update {}", update_));
    }
    const std::string groups = differingGroups(digest_->updates[update_], digestOf(game));
    if (!groups.empty()) {
        throw std::runtime_error(
            fmt::format("the state differs from the digest in update {}: {}; 'digest --fields --at {}' lists it",
                        update_, groups, update_));
    }
    ++update_;
}

void DigestCheck::requireAllCompared() const {
    if (!digest_.has_value()) {
        return;
    }
    if (update_ != digest_->updates.size()) {
        throw std::runtime_error(
            fmt::format("the round ended after {} updates, the digest tells of {}", update_, digest_->updates.size()));
    }
    if (checksumOf(replayPath_) != digest_->replayChecksum) {
        throw std::runtime_error("the replay plays like the one that the digest was made from, but has other bytes");
    }
}

}  // namespace vandrel
