// The bounds rule of the number readers.
#ifndef ZEPH_NUMBER_BOUNDS_H
#define ZEPH_NUMBER_BOUNDS_H

namespace zeph {

// Two equal bounds are no bound at all; otherwise both ends are allowed. A NaN bound bounds
// nothing, as it compares false.
template <typename Number>
constexpr bool within_bounds(Number minimum, Number value, Number maximum) {
  return minimum == maximum || !(minimum > value || value > maximum);
}

}  // namespace zeph

#endif  // ZEPH_NUMBER_BOUNDS_H
