#include "presentation/atlas_layout.h"

#include <algorithm>
#include <iterator>

namespace vandrel {

std::optional<int> AtlasLayout::take(Row& row, int width) {
    for (auto stretch = row.free.begin(); stretch != row.free.end(); ++stretch) {
        const auto [x, freeWidth] = *stretch;
        if (freeWidth < width) {
            continue;
        }
        row.free.erase(stretch);
        if (freeWidth > width) {
            row.free.emplace(x + width, freeWidth - width);
        }
        return x;
    }
    return {};
}

AtlasLayout::Row& AtlasLayout::addRow(int height) {
    if (usedHeight_.empty() || usedHeight_.back() + height > pageSize_) {
        usedHeight_.push_back(0);
    }
    Row row{pageCount() - 1, usedHeight_.back(), height, {{0, pageSize_}}};
    usedHeight_.back() += height;
    return rows_.emplace_back(std::move(row));
}

bool AtlasLayout::fits(int width, int height) const {
    return std::max(width, height) + 2 * atlasBorder <= pageSize_;
}

std::optional<AtlasPlace> AtlasLayout::place(int width, int height) {
    if (!fits(width, height)) {
        return {};
    }
    const int outerWidth = width + 2 * atlasBorder;
    const int outerHeight = height + 2 * atlasBorder;
    for (Row& row : rows_) {
        if (row.height != outerHeight) {
            continue;
        }
        if (const std::optional<int> x = take(row, outerWidth)) {
            return AtlasPlace{row.page, *x + atlasBorder, row.y + atlasBorder, width, height};
        }
    }
    Row& row = addRow(outerHeight);
    const int x = *take(row, outerWidth);
    return AtlasPlace{row.page, x + atlasBorder, row.y + atlasBorder, width, height};
}

void AtlasLayout::release(const AtlasPlace& place) {
    int left = place.x - atlasBorder;
    int right = place.x + place.width + atlasBorder;
    for (Row& row : rows_) {
        if (row.page != place.page || row.y != place.y - atlasBorder) {
            continue;
        }
        auto next = row.free.lower_bound(left);
        if (next != row.free.end() && next->first == right) {
            right += next->second;
            next = row.free.erase(next);
        }
        if (next != row.free.begin()) {
            const auto previous = std::prev(next);
            if (previous->first + previous->second == left) {
                left = previous->first;
                row.free.erase(previous);
            }
        }
        row.free.emplace(left, right - left);
        return;
    }
}

}  // namespace vandrel
