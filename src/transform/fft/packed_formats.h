// Where the spectrum X of n real values stands in its packed forms. X[0] is in slot 0; the pairs X[1] to X[(n - 1) / 2]
// follow one another from first_pair(n); for even n the real X[n / 2] is in slot middle(n).
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT::packed {

struct ccs_format {  // X[0] and X[n / 2] are pairs too
  static size_t first_pair(size_t) { return 2; }
  static size_t middle(size_t n) { return n; }
};

struct pack_format {
  static size_t first_pair(size_t) { return 1; }
  static size_t middle(size_t n) { return n - 1; }
};

struct perm_format {
  static size_t first_pair(size_t n) { return n % 2 == 0 ? 2 : 1; }
  static size_t middle(size_t) { return 1; }
};

inline bool   has_middle(size_t n) { return n % 2 == 0; }
inline size_t pairs_between(size_t n) { return (n - 1) / 2; }  // without the two real ends

}  // namespace tav::TAV_VARIANT::packed
