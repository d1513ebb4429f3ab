// Finds image files by name: one walk over the directories below a directory answers for all names.
#pragma once

#include <filesystem>
#include <string>
#include <unordered_map>

namespace vandrel {

class ImageIndex {
  public:
    // Directories below `root` are visited in sorted order, a parent before its children. Files in `root` itself do not
    // count; directories whose names begin with a point, links to directories and unreadable ones are passed over.
    explicit ImageIndex(const std::filesystem::path& root);

    // The file of the image in the first directory that has it, and there the one whose extension comes first: .tga,
    // .bmp, .png, .jpg, .jpeg. Throws std::runtime_error "Image not found: NAME".
    const std::string& pathOf(const std::string& name) const;

  private:
    struct Entry {
        std::string path;
        std::size_t directory = 0;
        std::size_t extension = 0;
    };

    void addDirectory(const std::filesystem::path& directory, std::size_t number);

    std::unordered_map<std::string, Entry> entries_;
};

}  // namespace vandrel
