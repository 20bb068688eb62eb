// A view's formulas as they are at one moment, and the way back to them.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "model/report_view.h"

namespace vrel {

/// All that changes with formula fields and highlight formulas.
struct FormulaState {
  struct Field {
    bool isFormula = false;
    std::string highlight;
    // Of formula fields only.
    std::string name = {};
    Classification classification = Classification::Unset;
    bool hidden = false;
    std::string expression = {};
    std::string inverse = {};

    bool operator==(const Field&) const = default;
  };

  std::vector<Field> fields;
  std::array<std::vector<int>, kAxisCount> axes;
  std::vector<BreakDefinition> breaks;
};

bool operator==(const FormulaState& a, const FormulaState& b);

FormulaState formulaState(const ReportView& view);

/// Whether columns of the view's table come or go on the way back to a state.
bool movesColumns(const ReportView& view, const FormulaState& state);

/// Brings a view of the same plain fields back to a state. Everything has to be recalculated then.
/// False, with nothing changed, when memory runs out or the plain fields are others.
bool restoreFormulas(ReportView& view, const FormulaState& state);

}  // namespace vrel
