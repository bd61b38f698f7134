// Companding and the lines of multi-channel sound by definition.
#pragma once
#include <math.h>
#include <stdlib.h>

#include <string>

#include "tavs.h"

namespace oracle {

enum class law { a, mu };

// The smallest magnitude that has a level of 0 to 127: eight segments of 16 steps, each twice as wide as those of the
// segment below it; the lowest two of A-law have the same steps. A-law has magnitudes of 12 bits, mu-law of 13.
inline int lowest_of_level(law l, int level) {
  const int segment = level / 16, step = level % 16;
  if (l == law::mu) return ((32 + 2 * step) << segment) - 33;
  return segment == 0 ? 2 * step : (32 + 2 * step) << (segment - 1);
}

inline int level_of(law l, int magnitude) {
  int level = 0;
  while (level < 127 && lowest_of_level(l, level + 1) <= magnitude) ++level;
  return level;
}

inline int dropped_bits(law l) { return l == law::a ? 3 : 2; }

inline Tav8u compressed(law l, int sample) {
  const int magnitude = (sample < 0 ? -1 - sample : sample) >> dropped_bits(l);
  const int sign = sample < 0 ? 0 : 0x80, level = level_of(l, magnitude);
  return Tav8u(l == law::a ? (sign | level) ^ 0x55 : sign | (127 - level));
}

// The middle of a level.
inline int expanded(law l, Tav8u code) {
  const int level  = l == law::a ? (code ^ 0x55) & 127 : 127 - (code & 127);
  const int lowest = lowest_of_level(l, level), next = lowest_of_level(l, level + 1);
  const int middle = (lowest + next) / 2 * (1 << dropped_bits(l));
  return code & 0x80 ? middle : -middle;
}

// To nearest: of ties the even one, or the one away from zero.
inline long double nearest(long double v, bool ties_away) {
  const long double below = floorl(v), rest = v - below;
  const bool        up = ties_away ? v > 0 : fmodl(below, 2) != 0;
  return below + (rest > 0.5L || (rest == 0.5L && up));
}

inline int sample_of(law l, Tav32f v) {
  const long double scaled = (long double)v * 32768;
  return v != v || scaled > 32767 ? 32767 : scaled < -32768 ? -32768 : int(nearest(scaled, l == law::a));
}

// Codes 0 to 255 of A-law in mu-law, two digits each, and the other way.
inline const char in_mu_law[] =
    "2A2B28292E2F2C2D2223202126272425393A37383D3E3B3C31322F3035363334"
    "0A0B08090E0F0C0D02030001060704051A1B18191E1F1C1D1213101116171415"
    "62636061666764655D5D5C5C5F5F5E5E747670727C7E787A6A6B68696E6F6C6D"
    "484946474C4D4A4B40413F3F44454243565754555A5B58594F4F4E4E52535051"
    "AAABA8A9AEAFACADA2A3A0A1A6A7A4A5B9BAB7B8BDBEBBBCB1B2AFB0B5B6B3B4"
    "8A8B88898E8F8C8D82838081868784859A9B98999E9F9C9D9293909196979495"
    "E2E3E0E1E6E7E4E5DDDDDCDCDFDFDEDEF4F6F0F2FCFEF8FAEAEBE8E9EEEFECED"
    "C8C9C6C7CCCDCACBC0C1BFBFC4C5C2C3D6D7D4D5DADBD8D9CFCFCECED2D3D0D1";

inline const char in_a_law[] =
    "2A2B28292E2F2C2D22232021262724253A3B38393E3F3C3D3233303136373435"
    "0A0B08090E0F0C0D020300010607041A1B18191E1F1C1D12131011161714156A"
    "68696E6F6C6D62636061666764657A787E7F7C7D72737071767774754B494F4D"
    "42434041464744455A5B58595E5F5C5D52525353505051515656575754545555"
    "AAABA8A9AEAFACADA2A3A0A1A6A7A4A5BABBB8B9BEBFBCBDB2B3B0B1B6B7B4B5"
    "8A8B88898E8F8C8D828380818687849A9B98999E9F9C9D9293909196979495EA"
    "E8E9EEEFECEDE2E3E0E1E6E7E4E5FAF8FEFFFCFDF2F3F0F1F6F7F4F5CBC9CFCD"
    "C2C3C0C1C6C7C4C5DADBD8D9DEDFDCDDD2D2D3D3D0D0D1D1D6D6D7D7D4D4D5D5";

inline Tav8u recoded(const char* digits, Tav8u code) {
  return Tav8u(strtol(std::string(digits + 2 * code, 2).c_str(), nullptr, 16));
}

// Samples and floats of -1 to 1.
struct sound_16s {
  using unit                   = Tav16s;
  static constexpr int lowest  = -32768;
  static constexpr int highest = 32767;

  static Tav32f split(int sample) { return Tav32f(Tav32f(sample) * 3.0518044e-5f) + 1.5259022e-5f; }
  static int    join(Tav32f v) {
       const Tav32f steps = Tav32f(v - 1.5259022e-5f) * 32767.5f;
       return v != v || steps > 32767 ? highest : steps < -32768 ? lowest : int(nearest(steps, false));
  }
};

struct sound_24s {
  using unit                   = Tav8u;
  static constexpr int lowest  = -8388608;
  static constexpr int highest = 8388607;

  static Tav32f split(int sample) { return Tav32f(Tav64f(sample * 1.19209296656209e-7) + 5.96046483281045e-8); }
  static int    join(Tav32f v) {
       const Tav64f steps = Tav64f(v - 5.96046483281045e-8) * (1 / 1.19209296656209e-7);
       return v != v || steps > highest ? highest : steps < lowest ? lowest : int(nearest(steps, false));
  }
};

}  // namespace oracle
