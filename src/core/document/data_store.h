// The store of all curve values: data groups of items addressed by
// (item index, group). Curve c keeps its x values in group 2c and its y
// values in group 2c+1; point i of the curve is item i of both groups.
#ifndef ZEL_CORE_DOCUMENT_DATA_STORE_H_
#define ZEL_CORE_DOCUMENT_DATA_STORE_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace zel {

inline constexpr int kMaxCurves = 6;
inline constexpr int kGroupCount = 2 * kMaxCurves;
// Style flag carried by every item the system writes.
inline constexpr std::uint32_t kItemStyle = 1024;

struct DataItem {
  double value = 0.0;
  std::uint32_t style = 0;
};

class DataStore {
 public:
  // Far beyond any record or spectrum, yet a bound on what a file can make us
  // allocate.
  static constexpr std::size_t kMaxItems = 10'000'000;

  // Stores `value` as item `item` of `group`, growing the group with zero
  // items as needed. Returns false, storing nothing, when the group or the
  // item index is out of range.
  bool SetValue(std::size_t item, int group, double value,
                std::uint32_t style = kItemStyle);
  // Appends to a group; false when the group is full or out of range.
  bool Append(int group, double value, std::uint32_t style = kItemStyle);

  // The value of an item, 0 when the item does not exist.
  double Value(std::size_t item, int group) const;
  std::size_t Size(int group) const;
  std::span<const DataItem> Items(int group) const;
  // Multiplies every value of a group by `factor`.
  void Scale(int group, double factor);
  void Clear();

  static bool IsValidGroup(int group) {
    return group >= 0 && group < kGroupCount;
  }

 private:
  std::array<std::vector<DataItem>, kGroupCount> groups_;
};

}  // namespace zel

#endif  // ZEL_CORE_DOCUMENT_DATA_STORE_H_
