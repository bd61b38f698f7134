// The loops of companding and of multi-channel sound that anyone would write, as the compiler makes them at
// -O3 -mssse3.
#pragma once
#include <tavs/types.h>

namespace plain {

void to_mu_law(const Tav16s* src, Tav8u* dst, int n);
void to_a_law(const Tav16s* src, Tav8u* dst, int n);
void from_mu_law(const Tav8u* src, Tav16s* dst, int n);  // by a table

void split(const Tav16s* src, float** lines, int count, int n);
void join(const float** lines, int count, int n, Tav16s* dst);

}  // namespace plain
