// tavsSortRadixIndex: the positions of keys in the order of the keys.
#include "stats/radix_index.h"
#include "frame/bind.h"
#include "frame/checks.h"

namespace tav::TAV_VARIANT {

template <class T, bool Descending>
TavStatus sort_radix_index(const T* src, int srcStrideBytes, int* dstIndex, int* tmpIndex, int len) {
  if (const TavStatus bad = check_vector(len, src, dstIndex, tmpIndex)) return bad;
  if (srcStrideBytes < int(sizeof(T))) return tavStatusBadSize;
  using word = word_of<T>;
  const radix_keys<word> keys(radix_order_of<T, Descending>());
  sort_positions<word>({reinterpret_cast<const char*>(src), size_t(srcStrideBytes), keys}, dstIndex, tmpIndex,
                       size_t(len));
  return tavStatusOk;
}

TAV_BIND(SortRadixIndexAscend_8u, &sort_radix_index<Tav8u, false>)
TAV_BIND(SortRadixIndexAscend_16s, &sort_radix_index<Tav16s, false>)
TAV_BIND(SortRadixIndexAscend_16u, &sort_radix_index<Tav16u, false>)
TAV_BIND(SortRadixIndexAscend_32s, &sort_radix_index<Tav32s, false>)
TAV_BIND(SortRadixIndexAscend_32u, &sort_radix_index<Tav32u, false>)
TAV_BIND(SortRadixIndexAscend_32f, &sort_radix_index<Tav32f, false>)
TAV_BIND(SortRadixIndexDescend_8u, &sort_radix_index<Tav8u, true>)
TAV_BIND(SortRadixIndexDescend_16s, &sort_radix_index<Tav16s, true>)
TAV_BIND(SortRadixIndexDescend_16u, &sort_radix_index<Tav16u, true>)
TAV_BIND(SortRadixIndexDescend_32s, &sort_radix_index<Tav32s, true>)
TAV_BIND(SortRadixIndexDescend_32u, &sort_radix_index<Tav32u, true>)
TAV_BIND(SortRadixIndexDescend_32f, &sort_radix_index<Tav32f, true>)

}  // namespace tav::TAV_VARIANT
