#include "core/document/data_store.h"

namespace zel {

bool DataStore::SetValue(std::size_t item, int group, double value,
                         std::uint32_t style) {
  if (!IsValidGroup(group) || item >= kMaxItems) return false;
  std::vector<DataItem>& items = groups_[group];
  if (item >= items.size()) items.resize(item + 1);
  items[item] = {value, style};
  return true;
}

bool DataStore::Append(int group, double value, std::uint32_t style) {
  return IsValidGroup(group) &&
         SetValue(groups_[group].size(), group, value, style);
}

double DataStore::Value(std::size_t item, int group) const {
  if (!IsValidGroup(group) || item >= groups_[group].size()) return 0.0;
  return groups_[group][item].value;
}

std::size_t DataStore::Size(int group) const {
  return IsValidGroup(group) ? groups_[group].size() : 0;
}

std::span<const DataItem> DataStore::Items(int group) const {
  if (!IsValidGroup(group)) return {};
  return groups_[group];
}

void DataStore::Scale(int group, double factor) {
  if (!IsValidGroup(group)) return;
  for (DataItem& item : groups_[group]) item.value *= factor;
}

void DataStore::Clear() {
  for (auto& items : groups_) items.clear();
}

}  // namespace zel
