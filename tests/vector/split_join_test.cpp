// tavsSplitScaled and tavsJoinScaled: every 16-bit sample there and back, one line to many, all offsets and page ends.
#include <algorithm>
#include <memory>

#include "harness/faults.h"
#include "harness/forms.h"
#include "harness/long_array.h"
#include "oracle/companding.h"

using namespace test;

namespace {

using oracle::sound_16s;
using oracle::sound_24s;

template <class Sound> inline constexpr size_t bytes_of = sizeof(typename Sound::unit) == 2 ? 2 : 3;
template <class Sound> auto                    split(auto... a) {
                     if constexpr (bytes_of<Sound> == 2)
    return call<&::tavsSplitScaled_16s32f_D2L>(a...);
  else
    return call<&::tavsSplitScaled_24s32f_D2L>(a...);
}
template <class Sound> auto join(auto... a) {
  if constexpr (bytes_of<Sound> == 2)
    return call<&::tavsJoinScaled_32f16s_D2L>(a...);
  else
    return call<&::tavsJoinScaled_32f24s_D2L>(a...);
}

template <class Sound> std::vector<Tav8u> bytes_of_samples(const std::vector<int>& samples) {
  std::vector<Tav8u> bytes;
  for (int s : samples)
    for (size_t k = 0; k < bytes_of<Sound>; ++k) bytes.push_back(Tav8u(unsigned(s) >> 8 * k));
  return bytes;
}

template <class Sound> int random_sample(source_of_data& data) {
  const int some[] = {Sound::lowest, Sound::lowest + 1, -1, 0, 1, Sound::highest};
  return data.below(4) == 0 ? some[data.below(6)] : int(data.bits()) >> (32 - 8 * int(bytes_of<Sound>));
}

// Mostly within the range, some beyond, some near a tie, some special.
template <class Sound> Tav32f random_level(source_of_data& data) {
  switch (data.below(4)) {
    case 0:
      return data.value<Tav32f>();
    case 1:
      return Tav32f(random_sample<Sound>(data) / (Sound::highest + 0.5));
    default:
      return Sound::split(random_sample<Sound>(data));
  }
}

// Frames and lines in arenas of their own.
struct stage {
  std::unique_ptr<arena>              frames_home;
  std::vector<std::unique_ptr<arena>> line_homes;

  stage(size_t lines, size_t len) : frames_home(new arena(lines * len * 3 + 16)) {
    for (size_t c = 0; c < lines; ++c) line_homes.push_back(std::make_unique<arena>(len * sizeof(Tav32f) + 16));
  }

  std::vector<array<Tav32f>> lines(size_t len, placement where, unsigned step) {
    std::vector<array<Tav32f>> all;
    for (auto& home : line_homes) {
      all.emplace_back(*home, len, where);
      where.offset = (where.offset + step) % 16;
    }
    return all;
  }
};

template <class P> std::vector<P> pointers(const std::vector<array<Tav32f>>& lines) {
  std::vector<P> all;
  for (const auto& l : lines) all.push_back(l.data());
  return all;
}

template <class Sound> void check_split(stage& s, source_of_data& data, size_t len, const layout& where) {
  using unit         = typename Sound::unit;
  const size_t     n = s.line_homes.size();
  std::vector<int> samples(n * len);
  for (int& v : samples) v = random_sample<Sound>(data);
  const auto   bytes = bytes_of_samples<Sound>(samples);
  array<Tav8u> frames(*s.frames_home, bytes.size(), where.src);
  frames.assign(bytes);
  const auto lines = s.lines(len, where.dst, where.src_step);
  auto       dst   = pointers<Tav32f*>(lines);

  ASSERT_EQ(split<Sound>(reinterpret_cast<const unit*>(frames.data()), dst.data(), int(n), int(len)), tavStatusOk);
  ASSERT_EQ(frames.values(), bytes) << "the source was written";
  for (size_t c = 0; c < n; ++c) {
    const auto got = lines[c].values();
    for (size_t j = 0; j < len; ++j)
      ASSERT_EQ(got[j], Sound::split(samples[j * n + c])) << "line " << c << ", sample " << samples[j * n + c];
    ASSERT_TRUE(lines[c].guards_intact()) << "written outside line " << c;
  }
}

template <class Sound> void check_join(stage& s, source_of_data& data, size_t len, const layout& where) {
  using unit                             = typename Sound::unit;
  const size_t                     n     = s.line_homes.size();
  auto                             lines = s.lines(len, where.src, where.src_step);
  std::vector<int>                 samples(n * len);
  std::vector<std::vector<Tav32f>> levels(n, std::vector<Tav32f>(len));
  for (size_t c = 0; c < n; ++c) {
    for (size_t j = 0; j < len; ++j) {
      levels[c][j]       = random_level<Sound>(data);
      samples[j * n + c] = Sound::join(levels[c][j]);
    }
    lines[c].assign(levels[c]);
  }
  const auto   want = bytes_of_samples<Sound>(samples);
  array<Tav8u> frames(*s.frames_home, want.size(), where.dst);
  auto         src = pointers<const Tav32f*>(lines);

  ASSERT_EQ(join<Sound>(src.data(), int(n), int(len), reinterpret_cast<unit*>(frames.data())), tavStatusOk);
  const auto got = frames.values();
  for (size_t i = 0; i < want.size(); ++i) ASSERT_EQ(got[i], want[i]) << "byte " << i;
  ASSERT_TRUE(frames.guards_intact()) << "written outside the frames";
  for (size_t c = 0; c < n; ++c) ASSERT_LT(first_difference(lines[c].values(), levels[c]), 0) << "a line was written";
}

template <class Sound> void check_lines_of(size_t n, const std::vector<size_t>& lengths, bool all_offsets) {
  stage          s(n, *std::max_element(lengths.begin(), lengths.end()));
  source_of_data data(uint32_t(n + 1));
  for (size_t len : lengths)
    for (const layout& where : all_offsets ? all_layouts() : few_layouts()) {
      SCOPED_TRACE(testing::Message() << n << " lines of " << len << ", " << where);
      check_split<Sound>(s, data, len, where);
      check_join<Sound>(s, data, len, where);
      if (testing::Test::HasFatalFailure()) return;
    }
}

std::vector<size_t> lengths_to(size_t most) {
  std::vector<size_t> all;
  for (size_t len = 1; len <= most; ++len) all.push_back(len);
  return all;
}

template <class Sound> void check_lines_1_to_9() {
  for (size_t n = 1; n <= 9; ++n) check_lines_of<Sound>(n, lengths_to(25), true);
}
// Around the blocks of frames in which the general form goes.
template <class Sound> void check_blocks() {
  for (size_t n : {1u, 2u, 3u, 4u, 7u}) check_lines_of<Sound>(n, {4096 / n - 1, 4096 / n, 4096 / n + 7, 4999}, false);
  check_lines_of<Sound>(33, {1, 3, 4, 123, 124, 125, 200, 333}, false);
  check_lines_of<Sound>(1030, {1, 3, 4, 5, 9}, false);
}

TEST(SplitJoin, From1To9Lines16s) { check_lines_1_to_9<sound_16s>(); }
TEST(SplitJoin, From1To9Lines24s) { check_lines_1_to_9<sound_24s>(); }
TEST(SplitJoin, Blocks16s) { check_blocks<sound_16s>(); }
TEST(SplitJoin, Blocks24s) { check_blocks<sound_24s>(); }

TEST(SplitJoin, EverySampleReturns) {
  std::vector<Tav16s> samples;
  for (int x = -32768; x <= 32767; ++x) samples.push_back(Tav16s(x));
  for (int n : {1, 2, 4, 16}) {
    const size_t        len = samples.size() / size_t(n);
    std::vector<Tav32f> room(samples.size());
    Tav32f*             dst[16];
    const Tav32f*       src[16];
    for (int c = 0; c < n; ++c) src[c] = dst[c] = room.data() + size_t(c) * len;
    std::vector<Tav16s> back(samples.size());
    ASSERT_EQ(call<&::tavsSplitScaled_16s32f_D2L>(samples.data(), dst, n, int(len)), tavStatusOk);
    EXPECT_EQ(dst[0][0], -1.0f);
    EXPECT_EQ(dst[n - 1][len - 1], 1.0f);
    ASSERT_EQ(call<&::tavsJoinScaled_32f16s_D2L>(src, n, int(len), back.data()), tavStatusOk);
    EXPECT_EQ(back, samples) << n;
  }
}

template <class Sound> void check_limits() {
  const float                 inf     = INFINITY;
  const std::pair<float, int> cases[] = {{1, Sound::highest},    {-1, Sound::lowest},    {1.5f, Sound::highest},
                                         {-1.5f, Sound::lowest}, {inf, Sound::highest},  {-inf, Sound::lowest},
                                         {NAN, Sound::highest},  {-NAN, Sound::highest}, {3e38f, Sound::highest}};
  for (const auto& [level, sample] : cases) {
    const std::vector<Tav32f> line(13, level);
    const Tav32f*             src[] = {line.data()};
    std::vector<Tav8u>        dst(13 * bytes_of<Sound>);
    ASSERT_EQ(join<Sound>(src, 1, 13, reinterpret_cast<typename Sound::unit*>(dst.data())), tavStatusOk);
    EXPECT_EQ(dst, bytes_of_samples<Sound>(std::vector<int>(13, sample))) << level;
  }
}
TEST(SplitJoin, Limits) {
  check_limits<sound_16s>();
  check_limits<sound_24s>();
}

// To nearest in every mode; splitting follows the mode, alike in vectors and in the scalar part.
template <class Sound> void check_modes() {
  source_of_data   data(5);
  std::vector<int> samples(64);
  for (int& v : samples) v = random_sample<Sound>(data);
  const auto          bytes = bytes_of_samples<Sound>(samples);
  std::vector<Tav32f> levels(64), in_mode(64), alone(64);
  for (Tav32f& v : levels) v = random_level<Sound>(data);
  const auto want = [&] {
    std::vector<int> joined;
    for (Tav32f v : levels) joined.push_back(Sound::join(v));
    return bytes_of_samples<Sound>(joined);
  }();
  using unit = typename Sound::unit;
  for (unsigned mode : rounding_modes) {
    std::vector<Tav8u> dst(bytes.size()), dst_alone(bytes.size());
    {
      const rounding_mode set(mode);
      const Tav32f*       src   = levels.data();
      Tav32f*             lines = in_mode.data();
      ASSERT_EQ(join<Sound>(&src, 1, 64, reinterpret_cast<unit*>(dst.data())), tavStatusOk);
      ASSERT_EQ(split<Sound>(reinterpret_cast<const unit*>(bytes.data()), &lines, 1, 64), tavStatusOk);
      for (size_t i = 0; i < 64; ++i) {
        src = &levels[i], lines = &alone[i];
        const size_t at = i * bytes_of<Sound>;
        ASSERT_EQ(join<Sound>(&src, 1, 1, reinterpret_cast<unit*>(&dst_alone[at])), tavStatusOk);
        ASSERT_EQ(split<Sound>(reinterpret_cast<const unit*>(&bytes[at]), &lines, 1, 1), tavStatusOk);
      }
    }
    EXPECT_EQ(dst, want) << std::hex << mode;
    EXPECT_EQ(dst_alone, want) << std::hex << mode;
    EXPECT_EQ(in_mode, alone) << std::hex << mode;
  }
}
TEST(SplitJoin, RoundingModes) {
  check_modes<sound_16s>();
  check_modes<sound_24s>();
}

// One line in the middle without memory: no other one is written, and no sample.
TEST(SplitJoin, NoLineIfOneIsNull) {
  const std::vector<Tav8u> samples(12 * 3, 0x5A);
  for (size_t null = 0; null < 4; ++null) {
    std::vector<std::vector<Tav32f>> lines(4, std::vector<Tav32f>(3, 42));
    Tav32f*                          dst[4];
    const Tav32f*                    src[4];
    for (size_t c = 0; c < 4; ++c) src[c] = dst[c] = c == null ? nullptr : lines[c].data();
    std::vector<Tav8u> frames = samples;
    const auto         words  = reinterpret_cast<Tav16s*>(frames.data());
    EXPECT_EQ(call<&::tavsSplitScaled_16s32f_D2L>(words, dst, 4, 3), tavStatusNullPointer);
    EXPECT_EQ(call<&::tavsSplitScaled_24s32f_D2L>(frames.data(), dst, 4, 3), tavStatusNullPointer);
    EXPECT_EQ(call<&::tavsJoinScaled_32f16s_D2L>(src, 4, 3, words), tavStatusNullPointer);
    EXPECT_EQ(call<&::tavsJoinScaled_32f24s_D2L>(src, 4, 3, frames.data()), tavStatusNullPointer);
    EXPECT_EQ(frames, samples);
    for (const auto& l : lines) EXPECT_EQ(l, std::vector<Tav32f>(3, 42));
    // Lines past the count do not matter.
    EXPECT_EQ(call<&::tavsSplitScaled_16s32f_D2L>(words, dst, int(null), 3), null ? tavStatusOk : tavStatusBadSize);
  }
}

// More samples than 31 bits count, in frames of 1024. All lines are one, whose last element is that of the last line.
TEST(SplitJoin, OffsetsBeyond32Bits) {
  if (sizeof(size_t) == 4) GTEST_SKIP() << "such an array does not fit here";
  constexpr int    lines = 1024, len = (1 << 21) + 1;
  const long_array samples;
  ASSERT_TRUE(samples.ready());
  const auto                 first = static_cast<Tav16s*>(samples.data());
  const auto                 last  = reinterpret_cast<Tav16s*>(samples.last());  // the frame beyond 4 GiB
  std::vector<Tav32f>        line(len);
  std::vector<Tav32f*>       dst(lines, line.data());
  std::vector<const Tav32f*> src(lines, line.data());

  last[lines - 1] = 12345;
  EXPECT_EQ(call<&::tavsSplitScaled_16s32f_D2L>(first, dst.data(), lines, len), tavStatusOk);
  EXPECT_EQ(line[0], sound_16s::split(0x1111));
  EXPECT_EQ(line[len - 1], sound_16s::split(12345));

  line[len - 1] = sound_16s::split(-5);
  EXPECT_EQ(call<&::tavsJoinScaled_32f16s_D2L>(src.data(), lines, len, first), tavStatusOk);
  EXPECT_EQ(std::vector<Tav16s>(last, last + lines), std::vector<Tav16s>(lines, -5));
  EXPECT_EQ(last[lines], 0x1111) << "nothing behind the last frame";
}

// The frames, the sizes, the array of lines.
template <size_t Frames, size_t Lines, size_t Count> void frames_sizes_lines(const tested& f) {
  faults(f).null(Frames).below_one(Count).below_one(Count + 1).null(Lines).expect();
}

}  // namespace

TAV_FAULTS(SplitScaled_16s32f_D2L, frames_sizes_lines<0, 1, 2>)
TAV_FAULTS(SplitScaled_24s32f_D2L, frames_sizes_lines<0, 1, 2>)
TAV_FAULTS(JoinScaled_32f16s_D2L, frames_sizes_lines<3, 0, 1>)
TAV_FAULTS(JoinScaled_32f24s_D2L, frames_sizes_lines<3, 0, 1>)
