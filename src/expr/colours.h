// The colours that highlight formulas name.
#pragma once

#include <array>
#include <string_view>

#include "expr/function_registry.h"

namespace vrel {

struct Colour {
  /// As formulas call it.
  std::string_view formulaName;
  /// As the window calls it.
  std::string_view name;
};

/// A highlight formula's value is a position in this list.
inline constexpr std::array<Colour, 9> kColours = {{
    {"BLACK", "Black"},
    {"RED", "Red"},
    {"PINK", "hot pink"},
    {"ORANGE", "Orange"},
    {"GREEN", "SpringGreen"},
    {"BLUE", "Blue"},
    {"YELLOW", "yellow"},
    {"VIOLET", "Violet"},
    {"BACKGROUND", "Background"},
}};

/// Makes the colours' names constants, in the place of the functions of the same names.
void addColours(FunctionRegistry& functions);

}  // namespace vrel
