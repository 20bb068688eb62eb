// A table that is edited, for tests: with formula fields, a view, and a host that is told.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "expr/report_edit.h"
#include "support/formula_table.h"
#include "support/recording_host.h"

namespace vrel::test {

class EditedTable : public testing::Test {
 protected:
  /// As for `FormulaTable`; the view shows nothing yet.
  EditedTable(std::string_view fields, std::string_view periods,
              const std::vector<std::string>& lines, const std::vector<FormulaOf>& formulas)
      : made_(fields, periods, lines, formulas) {
    view_.table = &made_.table;
  }

  std::vector<double> column(std::string_view field) const { return made_.column(field); }
  /// The message file that was announced last.
  std::string message() const { return host_.message(); }

  RecordingHost host_;
  FormulaTable made_;
  ReportView view_;
  Notice* notice_ = &made_.notice;
  Cell scratch_ = emptyCell();
  ReportEditor editor_ = {.view = view_,
                          .functions = made_.functions,
                          .scratch = scratch_,
                          .notice = notice_,
                          .host = host_.link};
};

}  // namespace vrel::test
