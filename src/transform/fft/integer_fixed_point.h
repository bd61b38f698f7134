// Short transforms of 16-bit integers in fixed point: up to 8 points, or 8 real samples. Exact to the last bit in both
// variants.
#pragma once
#include "transform/fft/integer_record.h"

#pragma GCC visibility push(hidden)
namespace tav::shared {

inline constexpr int fixed_point_to = 3;  // the highest order

// What the calls have in common. `area` has four bytes for each part of the transform, 16 at least, on a 16-byte
// boundary; for a single point it is not looked at.
struct fixed_transform {
  int     order;
  bool    inverse, root_half;
  int     shift, scale_factor;  // the result's factor: 2^-(shift + scale_factor)
  Tav32s* area;
};

inline fixed_transform fixed_transform_of(const integer_record& r, bool inverse, int scale_factor, Tav8u* area) {
  return {r.order,          inverse,
          r.root_half != 0, inverse ? r.shift_inverse : r.shift_forward,
          scale_factor,     reinterpret_cast<Tav32s*>(area)};
}

// Complex points, interleaved. src may be dst.
void run_fixed_pairs(const fixed_transform& t, const Tav16s* src, Tav16s* dst);
// Real samples and the spectrum in permuted order, from one to the other by `inverse`.
void run_fixed_real(const fixed_transform& t, const Tav16s* src, Tav16s* dst);

}  // namespace tav::shared
#pragma GCC visibility pop
