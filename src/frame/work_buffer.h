// The work area of one call: the caller's `buf`, aligned up, or an allocation that ends with the call.
//
//   work_buffer work(buf, record->bufSize);
//   if (work.failed()) return tavStatusNoMemory;
//   kernel(..., work.data());
//
// Make it after all argument checks, so that a bad call never allocates.
#pragma once
#include "frame/record.h"

namespace tav {

class work_buffer {
 public:
  // With bytes < 1 no area is needed: buf is not looked at and nothing is allocated.
  work_buffer(Tav8u* buf, int bytes) {
    if (bytes < 1) return;
    if (!buf) owned_ = allocate_bytes(size_t(bytes));
    data_   = buf ? align_up(buf) : static_cast<Tav8u*>(owned_);
    failed_ = !data_;
  }
  ~work_buffer() {
    if (owned_) release(owned_);
  }
  work_buffer(const work_buffer&)            = delete;
  work_buffer& operator=(const work_buffer&) = delete;

  bool   failed() const { return failed_; }
  Tav8u* data() const { return data_; }

 private:
  void*  owned_  = nullptr;
  Tav8u* data_   = nullptr;
  bool   failed_ = false;
};

}  // namespace tav
