// What tavsSplitScaled and tavsJoinScaled share. A frame is one sample of each line; the frames follow one another.
//
// The highest sample is 1, the lowest one -1, and 0 lies half a step above the middle.
#pragma once
#include "frame/bind.h"
#include "frame/checks.h"

namespace tav::TAV_VARIANT {

inline constexpr Tav32f step_of_16s = 3.0518044e-5f, half_step_of_16s = 1.5259022e-5f;
inline constexpr Tav64f step_of_24s = 1.19209296656209e-7, half_step_of_24s = 5.96046483281045e-8;

// The sizes come between the frames and the array of lines, and each line is looked at before anything is written.
template <class Line>
TAV_INLINE TavStatus check_lines(const void* frames, Line* const* lines, int lineCount, int lineLen) {
  if (!frames) return tavStatusNullPointer;
  if (lineCount < 1 || lineLen < 1) return tavStatusBadSize;
  if (!lines) return tavStatusNullPointer;
  for (int c = 0; c < lineCount; ++c)
    if (!peek(lines + c)) return tavStatusNullPointer;
  return tavStatusOk;
}

// Three lines or more: work(first, from, to) does the lines first to first + 3 in the frames [from, to), four at a
// time. Returns how many frames are done.
//
// The frames go in blocks that stay in the first-level cache while all lines pass. The last four lines may have been
// done in part before. Three lines are taken as four: what belongs to the fourth is the next frame's, so there must be
// one, and `work` lets it be overwritten.
template <class Work> TAV_INLINE size_t by_four_lines(size_t lines, size_t len, const Work& work) {
  constexpr size_t block_samples = 4096;
  const size_t     whole = (lines == 3 ? len - 1 : len) / 4 * 4, most = block_samples / lines / 4 * 4;
  const size_t     block = most < 4 ? 4 : most;
  for (size_t from = 0; from < whole; from += block) {
    const size_t to = whole - from < block ? whole : from + block;
    for (size_t done = 0; done < lines; done += 4) work(done + 4 <= lines || lines == 3 ? done : lines - 4, from, to);
  }
  return whole;
}

// Where the line of the fourth lane lies: of three lines, the third.
TAV_INLINE size_t fourth_line(size_t first, size_t lines) { return lines == 3 ? 2 : first + 3; }

}  // namespace tav::TAV_VARIANT
