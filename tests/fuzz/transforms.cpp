// Transforms of every record: sizes, set-up in memory of exactly these sizes or by allocation, both directions in and
// out of place with a work area of exactly its size or none, release.
#include "frame/variant_table.h"
#include "fuzz/input.h"
#include "transform/fft_integer_calls.h"

namespace fuzz {
namespace {

using test::order_of;

int drawn_order(input& in) { return in.one_in(40) ? 11 + in.below(4) : in.below(11); }
int drawn_flag(input& in) { return in.one_in(20) ? in.number() : 1 << in.below(4); }

// A context, if the arguments allow one.
template <class F> class context {
 public:
  context(const char* name, input& in, int order) : name_(name) {
    const int flag = drawn_flag(in), hint = in.one_in(4) ? in.number() : in.below(2);
    int       spec = -1, init = -1, work = -1;
    if (F::get_size(order, flag, hint, &spec, &init, &work) < 0) return;
    if (in.one_in(2)) {
      if (F::init_alloc(&ctx_, order, flag, hint) < 0) fail(name, "no context of sizes that were told");
      return;
    }
    spec_ = std::make_unique<memory>(in, size_t(spec));
    const memory scratch(in, size_t(init));
    if (F::init(&ctx_, order, flag, hint, spec_->data(), scratch.data()) < 0)
      fail(name, "no context in memory of the sizes that were told");
  }
  ~context() {
    if (ctx_ != nullptr && F::free(ctx_) != tavStatusOk) fail(name_, "a context is not released");
  }
  context(const context&)            = delete;
  context& operator=(const context&) = delete;

  typename F::record* get() const { return ctx_; }

  // None, or exactly what a call needs.
  std::unique_ptr<memory> work(input& in) const {
    int size = -1;
    if (F::get_buf_size(ctx_, &size) < 0 || size < 0) fail(name_, "no size of the work area");
    return in.one_in(3) ? nullptr : std::make_unique<memory>(in, size_t(size));
  }

 private:
  const char*             name_;
  typename F::record*     ctx_ = nullptr;
  std::unique_ptr<memory> spec_;
};

Tav8u* place_of(const std::unique_ptr<memory>& m) { return m ? m->data() : nullptr; }

void expect_done(const char* name, TavStatus status, const memory& src, const memory& dst) {
  if (status != tavStatusOk) fail(name, "the call is refused");
  if (!src.as_before()) fail(name, "the source was written");
  dst.look();
}

// Elements of type `part` that hold N points or samples, or their spectrum.
template <class F> size_t elements(size_t n, bool spectrum) {
  if constexpr (!test::is_real<F>)
    return 2 * n;
  else if constexpr (F::format == test::spectrum_format::ccs)
    return !spectrum ? n : n == 1 ? 2 : n + 2;
  else
    return n;
}

template <class F, bool Inverse> void float_transform(const char* name, input& in, const context<F>& c, size_t n) {
  using part        = typename F::part;
  const size_t from = elements<F>(n, Inverse), to = elements<F>(n, !Inverse);
  const auto   work = c.work(in);
  if (in.one_in(3)) {
    memory      both(in, std::max(from, to), part{});
    auto* const p = reinterpret_cast<part*>(both.data());
    if (test::run_fft<F, Inverse>(p, p, n, c.get(), place_of(work)) != tavStatusOk) fail(name, "the call is refused");
    both.look();
    return;
  }
  const memory src(in, from, part{}), dst(in, to, part{});
  expect_done(name,
              test::run_fft<F, Inverse>(reinterpret_cast<const part*>(src.data()), reinterpret_cast<part*>(dst.data()),
                                        n, c.get(), place_of(work)),
              src, dst);
}

template <class F> void call_float(const char* name, void (*)(), input& in) {
  tav::tav_variant_index = uint32_t(in.below(2));
  const int        order = drawn_order(in);
  const context<F> c(name, in, order);
  if (c.get() == nullptr) return;
  for (int calls = 1 + in.below(3); calls > 0; --calls) {
    if (in.one_in(2))
      float_transform<F, false>(name, in, c, size_t(1) << order);
    else
      float_transform<F, true>(name, in, c, size_t(1) << order);
  }
}

template <class F> void call_integer(const char* name, void (*)(), input& in) {
  using S                = typename F::src;
  using D                = typename F::dst;
  tav::tav_variant_index = uint32_t(in.below(2));
  const int    order     = drawn_order(in);
  const size_t n = size_t(1) << order, from = test::elements(F::from, n), to = test::elements(F::to, n);

  const context<typename F::record> c(name, in, order);
  if (c.get() == nullptr) return;
  const auto work  = c.work(in);
  const int  scale = in.number();
  if (F::in_place && in.one_in(3)) {
    memory both(in, std::max(from, to), S{});
    if (F::run(reinterpret_cast<S*>(both.data()), reinterpret_cast<D*>(both.data()), n, c.get(), scale, place_of(work))
        < 0)
      fail(name, "the call is refused");
    both.look();
    return;
  }
  const memory src(in, from, S{}), dst(in, to, D{});
  expect_done(name,
              F::run(reinterpret_cast<const S*>(src.data()), reinterpret_cast<D*>(dst.data()), n, c.get(), scale,
                     place_of(work)),
              src, dst);
}

}  // namespace

void add_fft_rows(std::vector<row>& rows) {
  using namespace test;
#define TAV_FLOATS(family) rows.push_back({#family, nullptr, &call_float<family>});
#define TAV_INTEGERS(form) rows.push_back({#form, nullptr, &call_integer<form>});
  TAV_FLOATS(fft_32fc)
  TAV_FLOATS(fft_32f) TAV_FLOATS(fft_64fc) TAV_FLOATS(fft_64f) TAV_FLOATS(fft_perm_32f) TAV_FLOATS(fft_pack_32f)
      TAV_FLOATS(fft_ccs_32f) TAV_FLOATS(fft_perm_64f) TAV_FLOATS(fft_pack_64f) TAV_FLOATS(fft_ccs_64f)
          TAV_INTEGERS(fwd_16sc) TAV_INTEGERS(inv_16sc) TAV_INTEGERS(fwd_16s) TAV_INTEGERS(inv_16s)
              TAV_INTEGERS(fwd_32sc) TAV_INTEGERS(inv_32sc) TAV_INTEGERS(fwd_32s) TAV_INTEGERS(inv_32s)
                  TAV_INTEGERS(fwd_perm_16s) TAV_INTEGERS(fwd_pack_16s) TAV_INTEGERS(fwd_ccs_16s)
                      TAV_INTEGERS(fwd_perm_32s) TAV_INTEGERS(fwd_pack_32s) TAV_INTEGERS(fwd_ccs_32s)
                          TAV_INTEGERS(inv_perm_16s) TAV_INTEGERS(inv_pack_16s) TAV_INTEGERS(inv_ccs_16s)
                              TAV_INTEGERS(inv_perm_32s) TAV_INTEGERS(inv_pack_32s) TAV_INTEGERS(inv_ccs_32s)
                                  TAV_INTEGERS(fwd_16s32s) TAV_INTEGERS(inv_32s16s)
#undef TAV_FLOATS
#undef TAV_INTEGERS
}

}  // namespace fuzz
