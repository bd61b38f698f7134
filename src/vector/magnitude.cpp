// tavsMagnitude_*, the forms with float results. Single squares become single roots, also those of words, which are
// exact before they are converted: two roundings, a result within 1 ULP.
#include "vector/squares.h"

namespace tav::TAV_VARIANT {
namespace {

template <class Squares> struct root_of : Squares {
  template <class... E> TAV_INLINE static auto one(E... e) { return root(Squares::one(e...)); }
  template <class... R> TAV_INLINE static auto many(R... r) { return root(Squares::many(r...)); }
};

}  // namespace

TAV_BIND(Magnitude_32f, &two_sources<root_of<squares_of<Tav32f>>>)
TAV_BIND(Magnitude_64f, &two_sources<root_of<squares_of<Tav64f>>>)
TAV_BIND(Magnitude_16s32f, &two_sources<root_of<squares_16s32f>>)

TAV_BIND(Magnitude_32fc, (&one_source<on_pairs<root_of<squares_of<Tav32f>>, Tav32fc>>))
TAV_BIND(Magnitude_64fc, (&one_source<on_pairs<root_of<squares_of<Tav64f>>, Tav64fc>>))
TAV_BIND(Magnitude_16sc32f, (&one_source<on_pairs<root_of<squares_16s32f>, Tav16sc>>))

}  // namespace tav::TAV_VARIANT
