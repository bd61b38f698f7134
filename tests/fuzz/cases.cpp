#include "fuzz/cases.h"

#include <sstream>

namespace fuzz {
namespace {

constexpr size_t head = sizeof(uint32_t);

uint32_t head_of(const row& r) { return hash_of(r.name, strlen(r.name)); }

// Any other number means a row as well, so that nothing the fuzzer tries is lost.
const row& row_of(uint32_t hash) {
  for (const row& r : rows())
    if (head_of(r) == hash) return r;
  return rows()[hash % rows().size()];
}
const row& row_named(const std::string& name) {
  for (const row& r : rows())
    if (name == r.name) return r;
  fail(name.c_str(), "there is no such row");
}

}  // namespace

const std::vector<row>& rows() {
  static const std::vector<row> all = [] {
    std::vector<row> r;
    add_array_rows(r);
    add_fft_rows(r);
    add_fir_rows(r);
    add_iir_rows(r);
    add_biquad_rows(r);
    add_direct_rows(r);
    add_memory_rows(r);
    return r;
  }();
  return all;
}

bytes case_of(const row& r, const bytes& rest) {
  const uint32_t hash = head_of(r);
  bytes          b(head + rest.size());
  memcpy(b.data(), &hash, head);
  std::copy(rest.begin(), rest.end(), b.begin() + head);
  return b;
}

void run_case(const uint8_t* data, size_t size) {
  uint32_t hash = 0;
  memcpy(&hash, data, std::min(size, head));
  const row&  r     = row_of(hash);
  const bytes known = case_of(r, {data + std::min(size, head), data + size});
  input       in(known.data() + head, known.size() - head);
  r.call(r.name, r.function, in);
}

bool is_text(const uint8_t* data, size_t size) {
  return size >= strlen(text_mark) && memcmp(data, text_mark, strlen(text_mark)) == 0;
}

std::vector<bytes> cases_in_text(const std::string& text) {
  std::istringstream lines(text);
  std::vector<bytes> all;
  for (std::string line; std::getline(lines, line);) {
    if (line.empty() || line[0] == '#') continue;
    const size_t      colon  = line.rfind(':');
    const std::string digits = line.substr(std::min(line.size(), colon + 2));
    bytes             rest;
    for (size_t i = 0; i + 1 < digits.size(); i += 2)
      rest.push_back(uint8_t(std::stoi(digits.substr(i, 2), nullptr, 16)));
    all.push_back(case_of(row_named(line.substr(0, colon)), rest));
  }
  return all;
}

std::string line_of(const bytes& one) {
  uint32_t hash = 0;
  memcpy(&hash, one.data(), std::min(one.size(), head));
  std::string line = std::string(row_of(hash).name) + (one.size() > head ? ": " : ":");
  for (size_t i = head; i < one.size(); ++i) {
    char digits[3];
    snprintf(digits, sizeof digits, "%02x", one[i]);
    line += digits;
  }
  return line;
}

}  // namespace fuzz
