// A transform of integers: they become floats at the head of the work area, the nested record transforms these in
// place, and they are rounded, to nearest, into the destination. What differs between the layouts of points is told by
// the data of the call:
//
//   fetch(area, n)                        the source as floats
//   transform<Nested>(area, n, ctx, buf)  the nested transform
//   deliver(area, n, scaleFactor)         the floats as integers
//   run_fixed(transform)                  all of it in fixed point, for the records that know it
//
// The source is read before the destination is written, so that they may be one.
#pragma once
#include "frame/checks.h"
#include "frame/rounding.h"
#include "frame/work_buffer.h"
#include "transform/fft/integer_traits.h"

namespace tav::TAV_VARIANT::fft {

inline void to_floats(const Tav16s* src, Tav32f* dst, size_t n) { forward<&::tavsConvert_16s32f>(src, dst, int(n)); }
inline void to_floats(const Tav32s* src, Tav32f* dst, size_t n) { forward<&::tavsConvert_32s32f>(src, dst, int(n)); }
inline void to_floats(const Tav32s* src, Tav64f* dst, size_t n) { forward<&::tavsConvert_32s64f>(src, dst, int(n)); }

inline constexpr int ties_to_even = 1;

inline void to_integers(const Tav32f* src, Tav16s* dst, size_t n, int scaleFactor) {
  forward<&::tavsConvert_32f16s_Sfs>(src, dst, int(n), ties_to_even, scaleFactor);
}
inline void to_integers(const Tav32f* src, Tav32s* dst, size_t n, int scaleFactor) {
  forward<&::tavsConvert_32f32s_Sfs>(src, dst, int(n), ties_to_even, scaleFactor);
}
inline void to_integers(const Tav64f* src, Tav32s* dst, size_t n, int scaleFactor) {
  forward<&::tavsConvert_64f32s_Sfs>(src, dst, int(n), ties_to_even, scaleFactor);
}

// Behind the checks. A work area of more than 31 bits is one that cannot be had.
template <direction Towards, class Record, class Data>
TavStatus transform_integers(const Record* ctx, const Data& data, int scaleFactor, Tav8u* buf) {
  const integer_record& r = opened_integer(ctx);
  const work_buffer     work(buf, r.buf_size);
  if (r.buf_size < 0 || work.failed()) return tavStatusNoMemory;
  if constexpr (integer_traits<Record>::has_fixed_point) {
    if (!r.nested) {
      data.run_fixed(shared::fixed_transform_of(r, Towards == direction::inverse, scaleFactor, work.data()));
      return tavStatusOk;
    }
  }
  const round_to_nearest scope;
  const size_t           n    = size_t(1) << r.order;
  auto* const            area = reinterpret_cast<float_of<Record>*>(work.data());
  auto* const            in   = static_cast<const typename nested_of<Record>::record*>(r.nested);
  data.fetch(area, n);
  constexpr auto  nested = nested_of<Record>::template run<Towards>;
  const TavStatus status = data.template transform<nested>(area, n, in, work.data() + float_bytes<Record>(n));
  if (status == tavStatusOk) data.deliver(area, n, scaleFactor);
  return status;
}

}  // namespace tav::TAV_VARIANT::fft
