// The record of all IIR states, one layout for every structure: an arbitrary order, a cascade of biquads, a cascade of
// biquads in direct form 1. The structure decides what the tables hold and how long they are.
#pragma once
#include "frame/record.h"

namespace tav {

template <class A> struct iir_record {  // A: the arithmetic type
  record_id id;
  A*        taps;        // divided by the leading coefficients, which are left out
  A*        delay;       // transposed direct form 2; direct form 1 in a cascade of that form
  int32_t   delay_len;   // entries that the accessors move
  A*        numerator;   // taps repeated for the kernels
  A*        look_ahead;  // what lets a kernel compute four outputs at a time
  int32_t   sections;    // of a cascade; 0 in a filter of arbitrary order
  A*        section_table;
  A*        scratch;  // block_samples elements
  A*        history;  // block_samples elements of forms whose data are not of the arithmetic type
  origin    from;
};

inline constexpr size_t block_samples = 1024;  // what the mixed forms and the arbitrary order work on at a time

// Records start on a 32-byte boundary of the block, wherever that lies.
inline constexpr uintptr_t iir_alignment = 32;

// The record with what brings its tables to a 16-byte boundary: 48 bytes where pointers have 32 bits, 96 where they
// have 64. This is all by which the sizes of states differ between the targets.
inline constexpr size_t iir_head = (sizeof(iir_record<Tav32f>) + 15) & ~size_t(15);
static_assert(iir_head == (sizeof(void*) == 4 ? 48 : 96) && sizeof(iir_record<Tav64fc>) == sizeof(iir_record<Tav32f>));

// Lays tables one behind the other. The same steps on a null block give the offset at which they end: a size.
class iir_block {
 public:
  explicit iir_block(Tav8u* start) : at_(reinterpret_cast<uintptr_t>(start) + iir_head) {}

  // `count` elements, on to the next multiple of `multiple` bytes.
  template <class T> T* take(uint64_t count, uint64_t multiple = 16) {
    T* const table = reinterpret_cast<T*>(uintptr_t(at_));
    at_ += (count * sizeof(T) + multiple - 1) & ~(multiple - 1);
    return table;
  }
  // Where element i of a table lies: an address, since a table may be too long to exist.
  template <class T> static T* inside(T* table, uint64_t i) {
    return reinterpret_cast<T*>(uintptr_t(reinterpret_cast<uintptr_t>(table) + i * sizeof(T)));
  }
  uint64_t end() const { return at_; }  // 64 bits on every target, so that a size that does not fit shows

 private:
  uint64_t at_;
};

}  // namespace tav
