// The comparison sort of keys with their indices.
#include "stats/sort/doubles.h"
#include "stats/sort/engine.h"
#include "stats/sort/sort.h"

namespace tav::TAV_VARIANT {

using namespace sorting;

void sort_pairs(Tav8u* keys, int* indices, size_t n) { sort(pair_arrays<Tav8u>{keys, indices}, n); }
void sort_pairs(Tav16u* keys, int* indices, size_t n) { sort(pair_arrays<Tav16u>{keys, indices}, n); }
void sort_pairs(Tav32s* keys, int* indices, size_t n) { sort(pair_arrays<Tav32s>{keys, indices}, n); }
void sort_pairs(Tav64u* keys, int* indices, size_t n) {
  const pair_arrays<Tav64u> doubles{keys, indices};
  sort(doubles, nans_last(doubles, n));
}

}  // namespace tav::TAV_VARIANT
