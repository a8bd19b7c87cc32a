// The members of a plain parameter record, found without naming them: how
// many there are (the most initialisers its braces take) and where each one
// lies (through a structured binding). A code's field table uses this to
// prove that it fills every member its generator reads.
#ifndef ZEL_CORE_CODES_AGGREGATE_MEMBERS_H_
#define ZEL_CORE_CODES_AGGREGATE_MEMBERS_H_

#include <cstddef>
#include <utility>
#include <vector>

namespace zel {
namespace aggregate_detail {

// Converts to any member type; only ever named in unevaluated contexts.
struct AnyMember {
  template <class T>
  operator T() const;  // NOLINT(google-explicit-constructor)
};

template <class T, std::size_t... I>
constexpr bool BracesTake(std::index_sequence<I...>) {
  return requires { T{(static_cast<void>(I), AnyMember{})...}; };
}

template <class T, std::size_t N = 0>
constexpr std::size_t CountMembers() {
  if constexpr (BracesTake<T>(std::make_index_sequence<N + 1>{})) {
    return CountMembers<T, N + 1>();
  } else {
    return N;
  }
}

}  // namespace aggregate_detail

// Number of members of the aggregate T (no base classes, no arrays).
template <class T>
constexpr std::size_t kMemberCount = aggregate_detail::CountMembers<T>();

// The address of each member of `record`, in declaration order. Records of
// up to 24 members; a larger one does not compile.
template <class T>
std::vector<const void*> MemberAddresses(const T& record) {
  constexpr std::size_t n = kMemberCount<T>;
  static_assert(n >= 1 && n <= 24, "a parameter record of 1 to 24 members");
#define ZEL_MEMBERS(...)                \
  {                                     \
    const auto& [__VA_ARGS__] = record; \
    return ZelAddresses(__VA_ARGS__);   \
  }
  const auto ZelAddresses = [](const auto&... members) {
    return std::vector<const void*>{static_cast<const void*>(&members)...};
  };
  // clang-format off
  if constexpr (n == 1) ZEL_MEMBERS(a)
  else if constexpr (n == 2) ZEL_MEMBERS(a, b)
  else if constexpr (n == 3) ZEL_MEMBERS(a, b, c)
  else if constexpr (n == 4) ZEL_MEMBERS(a, b, c, d)
  else if constexpr (n == 5) ZEL_MEMBERS(a, b, c, d, e)
  else if constexpr (n == 6) ZEL_MEMBERS(a, b, c, d, e, f)
  else if constexpr (n == 7) ZEL_MEMBERS(a, b, c, d, e, f, g)
  else if constexpr (n == 8) ZEL_MEMBERS(a, b, c, d, e, f, g, h)
  else if constexpr (n == 9) ZEL_MEMBERS(a, b, c, d, e, f, g, h, i)
  else if constexpr (n == 10) ZEL_MEMBERS(a, b, c, d, e, f, g, h, i, j)
  else if constexpr (n == 11) ZEL_MEMBERS(a, b, c, d, e, f, g, h, i, j, k)
  else if constexpr (n == 12) ZEL_MEMBERS(a, b, c, d, e, f, g, h, i, j, k, l)
  else if constexpr (n == 13) ZEL_MEMBERS(a, b, c, d, e, f, g, h, i, j, k, l, m)
  else if constexpr (n == 14) ZEL_MEMBERS(a, b, c, d, e, f, g, h, i, j, k, l, m, o)
  else if constexpr (n == 15) ZEL_MEMBERS(a, b, c, d, e, f, g, h, i, j, k, l, m, o, p)
  else if constexpr (n == 16) ZEL_MEMBERS(a, b, c, d, e, f, g, h, i, j, k, l, m, o, p, q)
  else if constexpr (n == 17) ZEL_MEMBERS(a, b, c, d, e, f, g, h, i, j, k, l, m, o, p, q, r)
  else if constexpr (n == 18) ZEL_MEMBERS(a, b, c, d, e, f, g, h, i, j, k, l, m, o, p, q, r, s)
  else if constexpr (n == 19) ZEL_MEMBERS(a, b, c, d, e, f, g, h, i, j, k, l, m, o, p, q, r, s, t)
  else if constexpr (n == 20) ZEL_MEMBERS(a, b, c, d, e, f, g, h, i, j, k, l, m, o, p, q, r, s, t, u)
  else if constexpr (n == 21) ZEL_MEMBERS(a, b, c, d, e, f, g, h, i, j, k, l, m, o, p, q, r, s, t, u, v)
  else if constexpr (n == 22) ZEL_MEMBERS(a, b, c, d, e, f, g, h, i, j, k, l, m, o, p, q, r, s, t, u, v, w)
  else if constexpr (n == 23) ZEL_MEMBERS(a, b, c, d, e, f, g, h, i, j, k, l, m, o, p, q, r, s, t, u, v, w, x)
  else ZEL_MEMBERS(a, b, c, d, e, f, g, h, i, j, k, l, m, o, p, q, r, s, t, u, v, w, x, y)
    // clang-format on
#undef ZEL_MEMBERS
}

}  // namespace zel

#endif  // ZEL_CORE_CODES_AGGREGATE_MEMBERS_H_
