// Owns how a master finds a row by its key: at once, however many rows there are, and of several
// rows with one key the first in the order of the file.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace veldrana {

// Keys compare as they were added; who wants no regard to case adds and asks in capitals.
template <class Row>
class FirstRows {
  public:
    void clear() noexcept { rows_.clear(); }

    // A key that is there already keeps its row.
    void add(std::string key, Row row) { rows_.try_emplace(std::move(key), std::move(row)); }

    // Null if no row has the key. Valid until the rows are cleared.
    const Row* find(std::string_view key) const {
        const auto found = rows_.find(key);
        return found == rows_.end() ? nullptr : &found->second;
    }

  private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view key) const noexcept {
            return std::hash<std::string_view>()(key);
        }
    };

    std::unordered_map<std::string, Row, Hash, std::equal_to<>> rows_;
};

}  // namespace veldrana
