// tavsCartToPolar: the results of tavsMagnitude and tavsPhase, in that order of checks.
#include "harness/arena.h"
#include "harness/faults.h"
#include "oracle/phase.h"
using namespace test;

namespace {

template <class F> struct coordinates { std::vector<F> re, im; };

template <class C> auto parts_of(const std::vector<C>& points) {
  coordinates<decltype(C::re)> c;
  for (const C& p : points) c.re.push_back(p.re), c.im.push_back(p.im);
  return c;
}

// Runs calls(points, magnitudes, phases, length) with destinations that end at unreadable pages.
template <class C, class F, class Calls, class Check> void each_length(const Calls& calls, const Check& check) {
  source_of_data data(13);
  arena          magnitude_home(4096), phase_home(4096);
  for (int len = 1; len <= 70; ++len) {
    std::vector<C> points(len, C{});
    for (C& p : points) p = {decltype(C::re)(int(data.bits() % 20001) - 10000), decltype(C::re)(data.bits() % 777)};
    array<F> magnitudes(magnitude_home, points.size(), {placement::ends_at_page}),
        phases(phase_home, points.size(), {placement::ends_at_page});
    ASSERT_EQ(calls(points, magnitudes.data(), phases.data(), len), tavStatusOk);
    for (int i = 0; i < len; ++i) check(points[i], magnitudes.values()[i], phases.values()[i]);
    ASSERT_TRUE(magnitudes.guards_intact() && phases.guards_intact()) << len;
    if (testing::Test::HasFatalFailure()) return;
  }
}

template <class C, class F> void check_floats(const auto& calls) {
  each_length<C, F>(calls, [](C p, F magnitude, F phase) {
    const long double re = p.re, im = p.im;
    ASSERT_LE(oracle::units_off(magnitude, sqrtl(re * re + im * im)), 2) << re << ", " << im;
    ASSERT_LE(oracle::units_off(phase, oracle::angle(re, im)), 2) << re << ", " << im;
  });
}

template <auto* Export, class C, class F> void check_parts() {
  check_floats<C, F>([](const std::vector<C>& points, F* magnitudes, F* phases, int len) {
    const auto c = parts_of(points);
    return call<Export>(c.re.data(), c.im.data(), magnitudes, phases, len);
  });
}

template <auto* Export, class C, class F> void check_pairs() {
  check_floats<C, F>([](const std::vector<C>& points, F* magnitudes, F* phases, int len) {
    return call<Export>(points.data(), magnitudes, phases, len);
  });
}

TEST(CartToPolar, As32f) { check_parts<&::tavsCartToPolar_32f, Tav32fc, Tav32f>(); }
TEST(CartToPolar, As64f) { check_parts<&::tavsCartToPolar_64f, Tav64fc, Tav64f>(); }
TEST(CartToPolar, As32fc) { check_pairs<&::tavsCartToPolar_32fc, Tav32fc, Tav32f>(); }
TEST(CartToPolar, As64fc) { check_pairs<&::tavsCartToPolar_64fc, Tav64fc, Tav64f>(); }

// Each result has a scale factor of its own.
TEST(CartToPolar, As16sc) {
  for (int phase_factor : {-13, -3, 0, -40, 9})
    each_length<Tav16sc, Tav16s>(
        [&](const std::vector<Tav16sc>& points, Tav16s* magnitudes, Tav16s* phases, int len) {
          return call<&::tavsCartToPolar_16sc_Sfs>(points.data(), magnitudes, phases, len, -1, phase_factor);
        },
        [&](Tav16sc p, Tav16s magnitude, Tav16s phase) {
          const long double twice = 2 * sqrtl((long double)(p.re) * p.re + (long double)(p.im) * p.im);
          ASSERT_EQ(magnitude, Tav16s(fminl(32767, rintl(twice)))) << p.re << ", " << p.im;
          ASSERT_EQ(phase, oracle::fixed_angle<Tav16s>(p.re, p.im, phase_factor)) << p.re << ", " << p.im;
        });
}

// The sources and the magnitudes, then the length, then the phases: their pointer alone missing, the magnitudes are
// there already.
void polar_faults(const tested& f) {
  const size_t phases    = f.pointers() - 1;  // pointers come first
  const auto   no_phases = [=](arguments& a) { a.spoil(phases); };
  faults       bad(f);
  for (size_t i = 0; i < phases; ++i) bad.null(i);
  bad.below_one(phases + 1);
  bad.expect();
  bad.expect_after("no phases", no_phases);
  each_build_of(f.split, [&] {
    source_of_data data(7);
    arguments      a(f, data, 2);
    no_phases(a);
    EXPECT_EQ(a.call(), tavStatusNullPointer);
    EXPECT_FALSE(a.untouched()) << "no magnitudes";
  });
}

}  // namespace

#define CASE(form) TAV_FAULTS(CartToPolar_##form, polar_faults)
CASE(16sc_Sfs)
CASE(32f)
CASE(32fc)
CASE(64f)
CASE(64fc)
#undef CASE
