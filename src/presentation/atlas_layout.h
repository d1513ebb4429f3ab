// Where small pictures lie on the pages of the atlas: a plan in rows of equal height, each with its free stretches.
// Every place has a border of its own that stays transparent, so no picture ever touches another. Pixels throughout.
#pragma once

#include <map>
#include <optional>
#include <vector>

namespace vandrel {

// A picture's rectangle, without its border.
struct AtlasPlace {
    int page = 0;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

inline constexpr int atlasBorder = 1;

class AtlasLayout {
  public:
    explicit AtlasLayout(int pageSize) : pageSize_(pageSize) {}

    // Whether a page could hold a picture of this size.
    bool fits(int width, int height) const;
    // A free place of this size, on a new page if need be; empty when no page could hold it.
    std::optional<AtlasPlace> place(int width, int height);
    // Makes a place free for another picture.
    void release(const AtlasPlace& place);
    int pageCount() const { return static_cast<int>(usedHeight_.size()); }

  private:
    struct Row {
        int page = 0;
        int y = 0;
        int height = 0;
        std::map<int, int> free;  // width of each free stretch, by its left end; no two touch
    };

    Row& addRow(int height);
    static std::optional<int> take(Row& row, int width);

    int pageSize_;
    std::vector<int> usedHeight_;  // of each page
    std::vector<Row> rows_;
};

}  // namespace vandrel
