// Keeps the peers to 16-byte registers, and picks the library's variant.
#pragma once
#include <string>

namespace bench {

// What decides all this is read while a program is loaded: starts the program anew, once, with the right environment.
void confine(const std::string& variant, char** argv);

}  // namespace bench
