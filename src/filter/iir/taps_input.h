// Integer taps with a scale factor: tap * 2^-tapsFactor, in memory taken for the call.
#pragma once
#include "filter/iir/traits.h"
#include "frame/bind.h"

namespace tav::TAV_VARIANT::iir {

template <class A> class converted_taps {
 public:
  // `count` taps; there is no array that long if the count does not fit.
  template <class T> converted_taps(const T* taps, uint64_t count, int tapsFactor) {
    static_assert(parts<T> == parts<A>);
    const uint64_t bytes = count * sizeof(A);
    if (bytes > uint64_t(INT32_MAX)) return;
    data_ = static_cast<A*>(allocate_bytes(size_t(bytes)));
    if (!data_) return;
    forward<&::tavsConvert_32s32f_Sfs>(reinterpret_cast<const Tav32s*>(taps), reinterpret_cast<Tav32f*>(data_),
                                       int(count * parts<A>), tapsFactor);
  }
  ~converted_taps() {
    if (data_) release(data_);
  }
  converted_taps(const converted_taps&)            = delete;
  converted_taps& operator=(const converted_taps&) = delete;

  const A* data() const { return data_; }  // null: there was no memory

 private:
  A* data_ = nullptr;
};

}  // namespace tav::TAV_VARIANT::iir
