// Twiddle records that need no set-up: those of 16 and 32 points, and constants of the column pass.
#pragma once
#include "transform/fft/butterflies.h"

namespace tav::TAV_VARIANT::fft {

// cos(2 pi k / 32) for k = 0 ... 8
inline constexpr long double cosines_of_32[] = {1.0L,
                                                0.98078528040323044912618223613423903697L,
                                                0.92387953251128675612818318939678828682L,
                                                0.83146961230254523707878837761790575673L,
                                                0.70710678118654752440084436210484903928L,
                                                0.55557023301960222474283081394853287438L,
                                                0.38268343236508977172845998403039886676L,
                                                0.19509032201612826784828486847702224093L,
                                                0.0L};

constexpr long double cosine_of_32(int k) {
  k %= 32;
  if (k > 16) k = 32 - k;
  return k <= 8 ? cosines_of_32[k] : -cosines_of_32[16 - k];
}

template <class T, int Records> struct record_table {
  T         values[Records * radix4_record<T>];
  constexpr operator const T*() const { return values; }
};

// The records of the radix-4 stage of that span: for L points at a time w^k, w^3k, w^2k.
template <class T, int Span> constexpr auto radix4_records() {
  constexpr int                        powers[3] = {1, 3, 2}, turn = 32 / Span;
  record_table<T, Span / 4 / lanes<T>> table{};
  T*                                   at = table.values;
  for (int k = 0; k < Span / 4; k += lanes<T>)
    for (int power : powers) {
      for (int l = 0; l < lanes<T>; ++l) *at++ = T(cosine_of_32((k + l) * power * turn));
      for (int l = 0; l < lanes<T>; ++l) *at++ = T(cosine_of_32((k + l) * power * turn + 8));
    }
  return table;
}

template <class T> alignas(64) inline constexpr auto record_of_16 = radix4_records<T, 16>();
template <class T> alignas(64) inline constexpr auto record_of_32 = radix4_records<T, 32>();

}  // namespace tav::TAV_VARIANT::fft
