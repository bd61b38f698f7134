/* Usage: in_c VARIANT. Adds two arrays and checks that VARIANT (v8 or s8) of the library runs, on an aligned array. */
#include <stdint.h>
#include <stdio.h>
#include <string.h>
#include <tavcore.h>
#include <tavs.h>

enum { length = 1000 };

static int sums_are_right(Tav32f* a, Tav32f* b, Tav32f* sum) {
  int i;
  if (tavsSet_32f(1.5f, a, length) != tavStatusOk) return 0;
  if (tavsSet_32f(2.0f, b, length) != tavStatusOk) return 0;
  if (tavsAdd_32f(a, b, sum, length) != tavStatusOk) return 0;
  for (i = 0; i < length; ++i)
    if (sum[i] != 3.5f) return 0;
  return tavsAdd_32f(a, NULL, sum, length) == tavStatusNullPointer && tavsAdd_32f(a, b, sum, 0) == tavStatusBadSize;
}

int main(int argc, char** argv) {
  const TavLibVersion* version = tavsGetLibVersion();
  Tav32f*              a       = tavsMalloc_32f(length);
  Tav32f*              b       = tavsMalloc_32f(length);
  Tav32f*              sum     = tavsMalloc_32f(length);
  const int            right   = a && b && sum && tavAlignPtr(a, 64) == (void*)a && sums_are_right(a, b, sum);
  tavsFree(a);
  tavsFree(b);
  tavsFree(sum);
  if (!right) {
    fprintf(stderr, "in_c: the library does not add\n");
    return 1;
  }
  if (argc != 2 || strncmp(version->targetCode, argv[1], sizeof version->targetCode) != 0) {
    fprintf(stderr, "in_c: variant %.4s runs\n", version->targetCode);
    return 1;
  }
  return 0;
}
