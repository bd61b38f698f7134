// An angle is an integer of 53 bits times a power of two. Its product with 2/pi counts quarter turns, and of 2/pi only
// seven words matter: what stands before them makes whole turns, what follows them is too small.
#include "vector/huge_angle.h"

#include <stdint.h>

namespace tav::shared {
namespace {

constexpr int taken = 7;

// 2/pi = 0.A2F9836E4E44...
constexpr uint32_t two_over_pi[] = {0xA2F9836E, 0x4E441529, 0xFC2757D1, 0xF534DDC0, 0xDB629599, 0x3C439041, 0xFE5163AB,
                                    0xDEBBC561, 0xB7246E3A, 0x424DD2E0, 0x06492EEA, 0x09D1921C, 0xFE1DEB1C, 0xB129A73E,
                                    0xE88235F5, 0x2EBB4484, 0xE99C7026, 0xB45F7E41, 0x3991D639, 0x835339F4, 0x9C845F8B,
                                    0xBDF9283B, 0x1FF897FF, 0xDE05980F, 0xEF2F118B, 0x5A0A6D1F, 0x6D367ECF, 0x27CB09B7,
                                    0x4F463F66, 0x9E5FEA2D, 0x7527BAC7, 0xEBE5F17B, 0x3D0739F7, 0x8A5292EA, 0x6BFB5FB1,
                                    0x1F8D5D08, 0x56033046};

uint64_t shifted_in(uint64_t high, uint64_t low, int by) { return high << by | low >> 1 >> (63 - by); }

// Counts quarter turns modulo 4 in units of 2^-190: from the top, two bits before the point and 190 after it.
struct turns {
  uint64_t top, middle, bottom;
};

turns turns_of(uint64_t significand, int exponent) {
  const int      first   = exponent > 2 ? (exponent - 2) / 32 : 0;
  const uint32_t word[2] = {uint32_t(significand), uint32_t(significand >> 32)};
  uint32_t       product[taken + 2]{};  // the lowest word first
  for (int j = 0; j < 2; ++j) {
    uint64_t carry = 0;
    for (int i = 0; i < taken; ++i) {
      carry += uint64_t(two_over_pi[first + taken - 1 - i]) * word[j] + product[i + j];
      product[i + j] = uint32_t(carry);
      carry >>= 32;
    }
    product[taken + j] = uint32_t(carry);
  }
  const auto pair = [&](int i) { return uint64_t(product[2 * i + 1]) << 32 | product[2 * i]; };
  const int  up   = exponent - 32 * first + 30;  // 0 to 63
  return {shifted_in(pair(3), pair(2), up), shifted_in(pair(2), pair(1), up), shifted_in(pair(1), pair(0), up)};
}

double power_of_two(int n) { return __builtin_bit_cast(double, uint64_t(1023 + n) << 52); }

// fraction * 2^-128 * pi/2, the fraction's top bit being set. Pieces of 27 and 26 bits, so that products are exact.
reduced_angle quarter_times(uint64_t high, uint64_t low) {
  constexpr double pi_half[3] = {0x1.921fb5p+0, 0x1.110b46p-26, 0x1.1a62633145c07p-54};

  constexpr uint64_t piece = (1 << 27) - 1;
  const double       a = double(int32_t(high >> 37)) * 0x1p-27, b = double(int32_t(high >> 10 & piece)) * 0x1p-54,
               c    = double(int32_t((high << 17 | low >> 47) & piece)) * 0x1p-81;
  const double most = a * pi_half[0];
  const double more = (a * pi_half[1] + b * pi_half[0]) + (a * pi_half[2] + b * pi_half[1] + c * pi_half[0]);
  const double rest = most + more;
  return {rest, (most - rest) + more, 0};
}

}  // namespace

reduced_angle reduce_huge_angle(double angle) {
  constexpr uint64_t leading_one = uint64_t(1) << 52;
  const uint64_t     bits        = __builtin_bit_cast(uint64_t, angle);
  const int          field       = int(bits >> 52);
  if (field == 2047) return {angle - angle, 0, 0};

  const turns    t        = turns_of((bits & (leading_one - 1)) | leading_one, field - 1075);
  uint64_t       high     = shifted_in(t.top, t.middle, 2);
  uint64_t       low      = shifted_in(t.middle, t.bottom, 2);
  const bool     negative = high >> 63;  // more than half of a quarter: it counts from the next one
  const unsigned quarters = unsigned(t.top >> 62) + negative;
  if (negative) high = ~high, low = ~low;

  const int     zeros = __builtin_clzll(high | 1);  // at most 61: no double comes closer to a quarter turn
  reduced_angle r     = quarter_times(shifted_in(high, low, zeros), low << zeros);
  const double  unit  = negative ? -power_of_two(-zeros) : power_of_two(-zeros);
  return {r.rest * unit, r.low * unit, int(quarters & 3)};
}

}  // namespace tav::shared
