#include "presentation/image_index.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <system_error>
#include <vector>

namespace vandrel {

namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, 5> imageExtensions{".tga", ".bmp", ".png", ".jpg", ".jpeg"};

// The entries of a directory; those that could be read, where an error ends the walk.
std::vector<fs::directory_entry> entriesOf(const fs::path& directory) {
    std::vector<fs::directory_entry> entries;
    std::error_code error;
    for (fs::directory_iterator entry(directory, error), end; !error && entry != end; entry.increment(error)) {
        entries.push_back(*entry);
    }
    return entries;
}

bool isVisitedDirectory(const fs::directory_entry& entry) {
    std::error_code error;
    return entry.is_directory(error) && !entry.is_symlink(error) && entry.path().filename().native().front() != '.';
}

std::vector<fs::path> directoriesBelow(const fs::path& root) {
    std::vector<fs::path> found;
    for (const fs::directory_entry& entry : entriesOf(root)) {
        if (!isVisitedDirectory(entry)) {
            continue;
        }
        found.push_back(entry.path());
        for (fs::path& below : directoriesBelow(entry.path())) {
            found.push_back(std::move(below));
        }
    }
    return found;
}

}  // namespace

ImageIndex::ImageIndex(const fs::path& root) {
    std::vector<fs::path> directories = directoriesBelow(root);
    std::sort(directories.begin(), directories.end());
    for (std::size_t number = 0; number < directories.size(); ++number) {
        addDirectory(directories[number], number);
    }
}

void ImageIndex::addDirectory(const fs::path& directory, std::size_t number) {
    for (const fs::directory_entry& file : entriesOf(directory)) {
        const std::string extension = file.path().extension().string();
        const auto found = std::find(imageExtensions.begin(), imageExtensions.end(), extension);
        if (found == imageExtensions.end()) {
            continue;
        }
        const Entry entry{file.path().string(), number,
                          static_cast<std::size_t>(std::distance(imageExtensions.begin(), found))};
        const auto [present, isNew] = entries_.try_emplace(file.path().stem().string(), entry);
        Entry& best = present->second;
        if (!isNew && best.directory == number && entry.extension < best.extension) {
            best = entry;
        }
    }
}

const std::string& ImageIndex::pathOf(const std::string& name) const {
    const auto found = entries_.find(name);
    if (found == entries_.end()) {
        throw std::runtime_error("Image not found: " + name);
    }
    return found->second.path;
}

}  // namespace vandrel
