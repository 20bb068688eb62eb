// What the dialogs that list a view's formulas have in common.
//
// What is changed in them is in force at once, so that the report shows it; until the list is
// applied, cancelling it takes all of that back.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QTreeWidget>
#include <optional>
#include <vector>

#include "expr/formula_state.h"
#include "expr/ui/formula_editor.h"
#include "expr/ui/formula_host.h"

namespace vrel {

/// One row of a list.
struct FormulaRow {
  int field;
  QString name;
  QString formula;
  QIcon icon = {};
};

class FormulaListDialog : public QDialog {
  Q_OBJECT

 public:
  FormulaListDialog(FormulaHost host, QWidget* parent);

  /// Shows the dialog, or brings it to the front.
  void present();
  /// The report was laid out anew: the list follows. What others have changed since is not taken
  /// back any more, and so nothing before it.
  void viewShown();
  /// Between `apply` and `refresh`: what is to be done.
  const FormulaChange& pendingChange() const { return pending_; }

 signals:
  /// A change is decided on: it is to be run, and the report computed and laid out.
  void apply();
  /// The change is done: whatever else shows formulas has to follow.
  void refresh();

 public slots:
  /// Keeps what was changed and closes the list.
  void slotApply();
  virtual void slotEdit() = 0;
  void slotSelectionChanged();
  void slotCurrentChanged(QTreeWidgetItem* current);
  /// Takes back what was changed and closes the list.
  void reject() override;

 protected:
  /// Enter presses the button that has the focus, and nothing else.
  void keyPressEvent(QKeyEvent* event) override;
  /// The controls of the form; `status` tells what is wrong with the selected formula.
  void setList(QTreeWidget* list, QLabel* status);
  virtual std::vector<FormulaRow> rows() const = 0;
  /// The editor that the list opens, owned by it.
  void setEditor(FormulaEditor* editor);
  /// Opens the editor for a field, or for a new one; asks first when something is written in it.
  void openEditor(std::optional<int> field);
  virtual void takeEdited() = 0;

  const FormulaHost& host() const { return host_; }
  Table& table() const { return *host_.view.table; }
  /// Has a change carried out; false, with a message, when it was not possible.
  bool change(FormulaChange change);
  /// The field of the selected row.
  std::optional<int> selectedField() const;
  void select(int field);
  void warn(const QString& title, const QString& text) const;

 private:
  void fill();
  /// Applies what stands in an open editor; false when it cannot be.
  bool finishEditor();
  /// Asks whether what is written in an open editor may be dropped.
  bool confirmDiscarding() const;
  struct Row {
    int field;
    QString name;
  };
  /// The item of that name, of several the one that stands for the same field.
  QTreeWidgetItem* itemOf(const std::optional<Row>& row) const;

  FormulaHost host_;
  QTreeWidget* list_ = nullptr;
  QLabel* status_ = nullptr;
  FormulaEditor* editor_ = nullptr;
  FormulaChange pending_;
  bool changing_ = false;
  // What cancelling leads back to, and what was there when the list was last filled.
  FormulaState kept_;
  FormulaState shown_;
  // The current row, which stays the current one while rows come and go around it.
  std::optional<Row> current_;
};

}  // namespace vrel
