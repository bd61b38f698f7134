// FIR filters with a state, and without one.
#include "filter/fir_calls.h"
#include "filter/fir_direct_calls.h"
#include "filter/fir_integer_calls.h"
#include "fuzz/filters.h"

namespace fuzz {
namespace {

template <class F, class Taps = F> struct fir_row {
  using state                       = typename F::state;
  using tap                         = typename Taps::taps;
  using data                        = typename F::data;
  using dly                         = data;
  static constexpr auto* get_size   = Taps::get_size;
  static constexpr auto* init       = Taps::init;
  static constexpr auto* init_alloc = Taps::init_alloc;
  static constexpr auto* set_taps   = Taps::set_taps;
  static constexpr auto* free       = F::free;
  static constexpr auto* block      = F::block;
  static constexpr auto* in_place   = F::in_place;
  static constexpr auto* one        = F::one;
  static constexpr auto* get_dly    = F::get_dly;
  static constexpr auto* set_dly    = F::set_dly;

  static size_t tap_count(int n) { return size_t(n); }
  static size_t dly_count(int n) { return size_t(n); }
};

// The doubled delay line and the place in it are the caller's.
template <class F> void call_direct(const char* name, void (*)(), input& in) {
  using taps             = typename F::taps;
  using data             = typename F::data;
  tav::tav_variant_index = uint32_t(in.below(2));
  const int n            = in.one_in(8) ? 1 + in.below(90) : 1 + in.below(12);
  memory    line(in, size_t(2 * n), data{}), h(in, size_t(n), taps{});
  int       index = in.below(n);
  for (int steps = 1 + in.below(4); steps > 0; --steps) {
    const auto                  how = test::direct::way(in.below(test::direct::ways));
    const int                   len = in.one_in(16) ? 1 + in.below(2500) : in.length();
    const memory                src(in, size_t(len), data{}), dst(in, size_t(len), data{});
    const test::direct::factors f{in.number(), in.number()};
    const TavStatus             status =
        F::run(how, reinterpret_cast<const data*>(src.data()), reinterpret_cast<data*>(dst.data()), len,
               reinterpret_cast<const taps*>(h.data()), n, reinterpret_cast<data*>(line.data()), &index, f);
    if (status < 0) fail(name, "the call is refused");
    if (!src.as_before() || !h.as_before()) fail(name, "a source was written");
    if (index < 0 || index >= n) fail(name, "the place in the delay line has left it");
    dst.look(), line.look();
  }
}

}  // namespace

void add_fir_rows(std::vector<row>& rows) {
  using namespace test;
#define TAV_ROW(...) rows.push_back({#__VA_ARGS__, nullptr, &call_filter<fir_row<__VA_ARGS__>>});
  TAV_ROW(fir_32f)
  TAV_ROW(fir_32fc) TAV_ROW(fir_64f) TAV_ROW(fir_64fc) TAV_ROW(fir_64f_32f) TAV_ROW(fir_64fc_32fc) TAV_ROW(fir_32f_16s)
      TAV_ROW(fir_32fc_16sc) TAV_ROW(fir_64f_32s) TAV_ROW(fir_32s) TAV_ROW(fir_64f_16s) TAV_ROW(fir_64fc_32sc)
          TAV_ROW(fir_64fc_16sc) TAV_ROW(words::fir_16s) TAV_ROW(words::fir_32s_16s) TAV_ROW(words::fir_32sc_16sc)
              TAV_ROW(words::fir_32s_16s, words::fir_32s_16s32f) TAV_ROW(words::fir_32sc_16sc, words::fir_32sc_16sc32fc)
#undef TAV_ROW
#define TAV_ROW(name) rows.push_back({#name, nullptr, &call_direct<direct::name>});
                  TAV_ROW(direct_32f) TAV_ROW(direct_32fc) TAV_ROW(direct_64f) TAV_ROW(direct_64fc)
                      TAV_ROW(direct_64f_32f) TAV_ROW(direct_64fc_32fc) TAV_ROW(direct_32f_16s)
                          TAV_ROW(direct_32fc_16sc) TAV_ROW(direct_64f_16s) TAV_ROW(direct_64fc_16sc)
                              TAV_ROW(direct_64f_32s) TAV_ROW(direct_64fc_32sc) TAV_ROW(direct_32s_16s)
                                  TAV_ROW(direct_32sc_16sc)
#undef TAV_ROW
}

}  // namespace fuzz
