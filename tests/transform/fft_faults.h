// The orders of checks of the Fourier transforms, as rows of faults.
#pragma once
#include "harness/faults.h"

namespace test {

// With one of the later faults the context is live: its first word says so, and nothing else of a
// record is read before the data is checked.
template <uint32_t Id> struct records {
  static inline uint32_t live[64] = {Id}, dead[64] = {}, other[64] = {Id == 4 ? 5u : 4u};
};

// The first `Data` arguments but the context may not be null.
template <uint32_t Id, size_t Ctx, size_t Data> void context_then_data(const tested& f) {
  faults bad(f);
  bad.null(Ctx)
      .add("dead context", tavStatusBadContext, [](arguments& a) { a.set(Ctx, records<Id>::dead); })
      .add("another context", tavStatusBadContext, [](arguments& a) { a.set(Ctx, records<Id>::other); });
  for (size_t i = 0; i < Data; ++i)
    if (i != Ctx)
      bad.add("argument " + std::to_string(i) + " null", tavStatusNullPointer,
              [i](arguments& a) { a.set(Ctx, records<Id>::live), a.spoil(i); });
  bad.expect();
}

inline void sizes_in_order(const tested& f) {
  faults(f)
      .value(0, -1, tavStatusBadOrder)
      .value(0, 31, tavStatusBadOrder)
      .null(3)
      .null(4)
      .null(5)
      .value(1, 3, tavStatusBadFlag)
      .value(0, 30, tavStatusBadOrder)
      .expect();
}

// `Above` is an order that is too great at first sight. A bad flag is not a row: it leaves its mark in the memory.
template <int Above> void init_in_order(const tested& f) {
  faults(f).null(0).value(1, -1, tavStatusBadOrder).value(1, Above, tavStatusBadOrder).null(4).expect();
}

inline void init_alloc_in_order(const tested& f) {
  faults(f)
      .null(0)
      .value(1, 31, tavStatusBadOrder)
      .value(2, 3, tavStatusBadFlag)
      .value(1, 30, tavStatusBadOrder)
      .expect();
}

}  // namespace test
