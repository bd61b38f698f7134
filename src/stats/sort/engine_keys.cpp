// The comparison sort of keys alone.
#include "stats/sort/doubles.h"
#include "stats/sort/engine.h"
#include "stats/sort/sort.h"

namespace tav::TAV_VARIANT {

using namespace sorting;

template <class T> static key_array<sizeof(T)> array_of(T* keys) { return {reinterpret_cast<char*>(keys)}; }

void sort_keys(Tav16s* keys, size_t n) { sort(array_of(keys), n); }
void sort_keys(Tav32s* keys, size_t n) { sort(array_of(keys), n); }
void sort_keys(Tav64u* keys, size_t n) {
  const auto doubles = array_of(keys);
  sort(doubles, nans_last(doubles, n));
}

}  // namespace tav::TAV_VARIANT
