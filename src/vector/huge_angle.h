// The rest of a huge angle after whole quarter turns. sine_cosine.h asks for it where two or three products with parts
// of pi/2 no longer do; exact for every double, and slow.
#pragma once

#pragma GCC visibility push(hidden)  // called directly, not through the table of a shared library
namespace tav::shared {

struct reduced_angle {
  double rest, low;  // their sum, from -pi/4 to pi/4
  int    quarters;   // modulo 4
};

// Of an angle from 2^22 upward; of an infinity the rest is a NaN. Rounds to nearest, in a scope of the caller.
reduced_angle reduce_huge_angle(double angle);

}  // namespace tav::shared
#pragma GCC visibility pop
