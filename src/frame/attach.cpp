#include "frame/attach.h"

#include "frame/cache.h"
#include "frame/variant_table.h"
#include "tavcore.h"

namespace tav {

// The only two words of the library that change after link time: written here, read ever after.
constinit uint32_t tav_variant_index = 0;
constinit uint32_t tav_cache_bytes   = 0;

// Runs when the library is loaded, before the program's own code.
__attribute__((constructor)) static void attach() {
  tav_variant_index = choose_variant(tavGetEnabledCpuFeatures());
  tav_cache_bytes   = last_level_cache_bytes();
}

}  // namespace tav
