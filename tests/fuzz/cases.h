// A case: the calls of one row, with what its bytes decide. The first four bytes name the row by a hash of its name, so
// that a case stays what it is when rows come and go.
//
// Cases kept for good stand in a text, one a line, the row's name and the bytes behind the hash: "Add_32f: 0107ff".
#pragma once
#include <istream>
#include <string>

#include "fuzz/input.h"

namespace fuzz {

using bytes = std::vector<uint8_t>;

const std::vector<row>& rows();

// The bytes of a case of that row; `rest` decides.
bytes case_of(const row& r, const bytes& rest);

void run_case(const uint8_t* data, size_t size);

// A text begins with the mark, and lines with a '#' are no cases. What names no row is refused.
inline constexpr char text_mark[] = "# Cases of `fuzz`";

bool               is_text(const uint8_t* data, size_t size);
std::vector<bytes> cases_in_text(const std::string& text);
std::string        line_of(const bytes& one);

}  // namespace fuzz
