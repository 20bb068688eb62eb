#include "model/paper.h"

#include <array>
#include <cstddef>

namespace vrel {
namespace {

constexpr std::array<Paper, 18> kPapers = {{
    {"Letter", 612, 792},
    {"Legal", 612, 1008},
    {"Ledger", 1224, 792},
    {"Tabloid", 792, 1224},
    {"Folio", 595, 935},
    {"Executive", 522, 756},
    {"A0", 2384, 3370},
    {"A1", 1684, 2384},
    {"A2", 1191, 1684},
    {"A3", 842, 1191},
    {"A4", 595, 842},
    {"A5", 420, 595},
    {"B0", 2920, 4127},
    {"B1", 2064, 2920},
    {"B2", 1460, 2064},
    {"B3", 1032, 1460},
    {"B4", 729, 1032},
    {"B5", 516, 729},
}};

bool isPaper(std::int32_t code) {
  return code >= 0 && static_cast<std::size_t>(code) < kPapers.size();
}

}  // namespace

std::span<const Paper> paperTypes() {
  return kPapers;
}

std::string_view paperName(std::int32_t code) {
  return isPaper(code) ? paperOf(code).name : "unknown";
}

const Paper& paperOf(std::int32_t code) {
  return kPapers[isPaper(code) ? static_cast<std::size_t>(code) : 0];
}

}  // namespace vrel
