// Which ranges are still to be sorted.
//
// Of two ranges the larger waits and the smaller is next, so that each one that waits is at least as long as all that
// is pushed above it: with lengths below 2^32 never more than 31 wait.
#pragma once
#include <stddef.h>
#include <stdint.h>

namespace tav::TAV_VARIANT::sorting {

struct range {
  size_t begin, end;

  size_t length() const { return end - begin; }
};

class waiting_ranges {
 public:
  static constexpr int most = 32;

  // The two parts of a range that was divided: the one to go on with.
  range next_of(range left, range right) {
    if (left.length() < right.length()) {
      const range smaller = left;
      left = right, right = smaller;
    }
    if (right.length() < 2) return left;
    push(left);
    return right;
  }
  bool  any() const { return count_ != 0; }
  int   count() const { return count_; }
  range pop() { return all_[--count_]; }

 private:
  void push(range r) { all_[count_++] = r; }

  range all_[most];
  int   count_ = 0;
};

}  // namespace tav::TAV_VARIANT::sorting
