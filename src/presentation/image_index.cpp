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

bool isVisitedDirectory(const fs::directory_entry& entry) {
    std::error_code error;
    return entry.is_directory(error) && !entry.is_symlink(error) && entry.path().filename().native().front() != '.';
}

std::vector<fs::path> directoriesBelow(const fs::path& root) {
    std::vector<fs::path> found;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(root, error)) {
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
    std::error_code error;
    for (const fs::directory_entry& file : fs::directory_iterator(directory, error)) {
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
