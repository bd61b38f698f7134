// The constants of companding: what each code stands for, and the codes of one law in the other.
#pragma once
#include "tavs.h"

#pragma GCC visibility push(hidden)
namespace tav {

struct sample_table {
  Tav16s sample[256];
};

extern const sample_table a_law_samples, mu_law_samples;

// A code of one law in the other. The sign bit passes unchanged, so the maps hold half of the codes.
//
// `change` is for look-ups of 16 codes in a register: row k has the entries 16 k to 16 k + 15, each exclusive-ored with
// the one 16 before it, so that the entry of a code is all rows up to its own, exclusive-ored.
struct code_map {
  Tav8u code[128];
  alignas(16) Tav8u change[8][16];
};

extern const code_map a_law_to_mu_law, mu_law_to_a_law;

}  // namespace tav
#pragma GCC visibility pop
