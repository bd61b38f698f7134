// tavsSortRadix: values sorted by their digits. Bytes are counted instead and need no buffer, but a null one is a fault
// there too.
#include "stats/radix_sort.h"
#include "frame/checks.h"
#include "stats/byte_counting.h"

namespace tav::TAV_VARIANT {

template <class T, bool Descending> TavStatus sort_radix(T* srcDst, T* tmp, int len) {
  if (const TavStatus bad = check_vector(len, srcDst, tmp)) return bad;
  if constexpr (sizeof(T) == 1) {
    sort_bytes_by_counting<Descending>(srcDst, size_t(len));
  } else {
    using word = word_of<T>;
    sort_words(reinterpret_cast<word*>(srcDst), reinterpret_cast<word*>(tmp), size_t(len),
               radix_order_of<T, Descending>());
  }
  return tavStatusOk;
}

TAV_BIND(SortRadixAscend_8u_I, &sort_radix<Tav8u, false>)
TAV_BIND(SortRadixAscend_16s_I, &sort_radix<Tav16s, false>)
TAV_BIND(SortRadixAscend_16u_I, &sort_radix<Tav16u, false>)
TAV_BIND(SortRadixAscend_32s_I, &sort_radix<Tav32s, false>)
TAV_BIND(SortRadixAscend_32u_I, &sort_radix<Tav32u, false>)
TAV_BIND(SortRadixAscend_32f_I, &sort_radix<Tav32f, false>)
TAV_BIND(SortRadixAscend_64f_I, &sort_radix<Tav64f, false>)
TAV_BIND(SortRadixDescend_8u_I, &sort_radix<Tav8u, true>)
TAV_BIND(SortRadixDescend_16s_I, &sort_radix<Tav16s, true>)
TAV_BIND(SortRadixDescend_16u_I, &sort_radix<Tav16u, true>)
TAV_BIND(SortRadixDescend_32s_I, &sort_radix<Tav32s, true>)
TAV_BIND(SortRadixDescend_32u_I, &sort_radix<Tav32u, true>)
TAV_BIND(SortRadixDescend_32f_I, &sort_radix<Tav32f, true>)
TAV_BIND(SortRadixDescend_64f_I, &sort_radix<Tav64f, true>)

}  // namespace tav::TAV_VARIANT
