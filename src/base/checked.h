// Table lookups that fail loudly, with texts that do not depend on the standard library in use.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string_view>

namespace vandrel {

// The element of a table at `index`. Throws std::out_of_range "invalid vector subscript".
template <class Table>
constexpr decltype(auto) checkedAt(Table& table, std::ptrdiff_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= std::size(table)) {
        throw std::out_of_range("invalid vector subscript");
    }
    return table[static_cast<std::size_t>(index)];
}

// The value of `key` in an ordered map. Throws std::out_of_range "invalid map<K, T> key".
template <class Map, class Key>
decltype(auto) checkedKey(Map& map, const Key& key) {
    const auto found = map.find(key);
    if (found == map.end()) {
        throw std::out_of_range("invalid map<K, T> key");
    }
    return (found->second);
}

// The row of `key` in a table whose rows have the keys `firstKey`, `firstKey` + 1 and so on. Throws std::out_of_range
// "invalid map<K, T> key".
template <class Table>
constexpr const auto& checkedRow(const Table& table, std::ptrdiff_t key, std::ptrdiff_t firstKey = 0) {
    if (key < firstKey || static_cast<std::size_t>(key - firstKey) >= std::size(table)) {
        throw std::out_of_range("invalid map<K, T> key");
    }
    return table[static_cast<std::size_t>(key - firstKey)];
}

// The value of `key` in a hash map. Throws std::out_of_range "invalid unordered_map<K, T> key".
template <class Map, class Key>
decltype(auto) checkedHashKey(Map& map, const Key& key) {
    const auto found = map.find(key);
    if (found == map.end()) {
        throw std::out_of_range("invalid unordered_map<K, T> key");
    }
    return (found->second);
}

}  // namespace vandrel
