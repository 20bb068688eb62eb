// The dialog over one break.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <memory>
#include <span>

#include "model/break_choices.h"
#include "ui/choice_table.h"
#include "ui/view_changer.h"

namespace Ui {
class ConfigureBreakDialog;
}

namespace vrel {

/// Each control writes its setting at once.
class ConfigureBreakDialog : public QDialog {
  Q_OBJECT

 public:
  /// Shows one of the view's breaks. Everything given must outlive the dialog; `notice` is the
  /// notice in force.
  ConfigureBreakDialog(ReportView& view, std::size_t position, RunChange changeView,
                       Notice*& notice, QWidget* parent = nullptr);
  ~ConfigureBreakDialog() override;

  void done(int result) override;

 public slots:
  /// The report follows once the field is left.
  void slotBreakNameChanged(const QString& name);
  void slotActiveToggled(bool active);
  void slotBlankAfterToggled(bool blank);
  /// These take an entry of their list.
  void slotFrequencyChanged(int entry);
  void slotFirstBreakChanged(int entry);
  /// Takes a row of the data fields and an entry of the operations. The report follows when the
  /// list of entries is closed.
  void slotBreakOptionChanged(int row, int entry);

 private:
  BreakDefinition& definition() { return view_.breaks[position_]; }
  void fillLists();
  void addChoices(QComboBox& box, std::span<const BreakChoice> choices, std::int32_t chosen,
                  const std::string& chosenText);
  void fillOperations();
  void connectControls();
  template <typename Value>
  void set(Value& setting, Value value);
  void showBreak();
  void showObstacle();

  ReportView& view_;
  std::size_t position_;
  RunChange changeView_;
  Notice*& notice_;
  std::unique_ptr<Ui::ConfigureBreakDialog> form_;
  ChoiceTableModel* operations_;
  // Whether the report shows the break as it is.
  bool isShown_ = true;
};

}  // namespace vrel
