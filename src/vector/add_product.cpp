// tavsAddProduct_*, tavsAddProductC_32f: products added to what the destination holds. Each product is rounded before
// it is added.
#include "vector/constant_ops.h"

namespace tav::TAV_VARIANT {

template <class T> struct product_and_sum : types<T, T, T> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  static T      one(T a, T b, T c) { return sum_of<T>::one(product_of<T>::one(a, b), c); }
  static reg<T> many(reg<T> a, reg<T> b, reg<T> c) { return sum_of<T>::many(product_of<T>::many(a, b), c); }
};

TAV_BIND(AddProduct_32f, &accumulated<product_and_sum<Tav32f>>)
TAV_BIND(AddProduct_64f, &accumulated<product_and_sum<Tav64f>>)
TAV_BIND(AddProduct_32fc, &accumulated<product_and_sum<Tav32fc>>)
TAV_BIND(AddProduct_64fc, &accumulated<product_and_sum<Tav64fc>>)

TAV_BIND(AddProductC_32f, &accumulated_constant<second_is_constant<product_and_sum<Tav32f>>>)

}  // namespace tav::TAV_VARIANT
