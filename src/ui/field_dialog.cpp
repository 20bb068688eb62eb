#include "ui/field_dialog.h"

#include <QTimer>
#include <algorithm>
#include <array>

#include "expr/ui/to_text.h"
#include "ui_field_dialog.h"

namespace vrel {

namespace {

struct ClassificationText {
  Classification classification;
  const char* text;
};

// In the order in which they are offered.
constexpr std::array<ClassificationText, 3> kClassifications = {{
    {Classification::Key, QT_TRANSLATE_NOOP("FieldDialog", "Key")},
    {Classification::DataReadWrite, QT_TRANSLATE_NOOP("FieldDialog", "Data, can be edited")},
    {Classification::DataReadOnly, QT_TRANSLATE_NOOP("FieldDialog", "Data, read only")},
}};

struct TypeText {
  FieldType type;
  const char* text;
};

constexpr std::array<TypeText, 6> kTypes = {{
    {FieldType::String, QT_TRANSLATE_NOOP("FieldDialog", "String")},
    {FieldType::Number, QT_TRANSLATE_NOOP("FieldDialog", "Number")},
    {FieldType::Boolean, QT_TRANSLATE_NOOP("FieldDialog", "Boolean")},
    {FieldType::Date, QT_TRANSLATE_NOOP("FieldDialog", "Date")},
    {FieldType::Expression, QT_TRANSLATE_NOOP("FieldDialog", "Expression")},
    {FieldType::Period, QT_TRANSLATE_NOOP("FieldDialog", "Period")},
}};

// A question must not outgrow the screen.
constexpr std::size_t kNamedFields = 10;
constexpr qsizetype kLongestValue = 40;

QString translated(const char* text) {
  return QCoreApplication::translate("FieldDialog", text);
}

ChoiceCell classificationCell(Classification chosen) {
  ChoiceCell cell;
  for (const ClassificationText& each : kClassifications) {
    if (each.classification == chosen) {
      cell.chosen = static_cast<int>(cell.texts.size());
    }
    cell.texts << translated(each.text);
  }
  return cell;
}

QString typeText(FieldType type) {
  const auto row = std::find_if(kTypes.begin(), kTypes.end(),
                                [type](const TypeText& each) { return each.type == type; });
  return row == kTypes.end() ? QString() : translated(row->text);
}

ChoiceCell typeCell(const FieldDef& field) {
  ChoiceCell cell;
  for (const FieldType type : typesFor(field)) {
    if (type == field.type) {
      cell.chosen = static_cast<int>(cell.texts.size());
    }
    cell.texts << typeText(type);
  }
  return cell;
}

}  // namespace

FieldDialogImpl::FieldDialogImpl(const Table& table, const FormatSettings& settings,
                                 Notice*& notice, QWidget* parent)
    : QDialog(parent),
      table_(table),
      settings_(settings),
      notice_(notice),
      form_(std::make_unique<Ui::FieldDialog>()),
      model_(new ChoiceTableModel(this)),
      classes_(fieldClasses(table)) {
  form_->setupUi(this);
  std::vector<ChoiceRow> rows;
  for (const FieldDef& field : table.fields) {
    rows.push_back(
        {toText(field.name), {classificationCell(field.classification), typeCell(field)}});
  }
  model_->setRows({tr("Field"), tr("Classification"), tr("Type")}, std::move(rows));
  model_->setChoose(
      [this](int field, int cell, int choice) { return choose(field, cell, choice); });
  form_->fieldTable->setModel(model_);
  form_->fieldTable->setAccessibleName(form_->captionLabel->text());
  connect(form_->applyButton, &QPushButton::clicked, this, &FieldDialogImpl::slotApply);
  connect(form_->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

FieldDialogImpl::~FieldDialogImpl() = default;

bool FieldDialogImpl::choose(int field, int cell, int choice) {
  const auto index = static_cast<std::size_t>(field);
  const auto entry = static_cast<std::size_t>(choice);
  if (cell == 1) {
    classes_[index].type = typesFor(table_.field(field))[entry];
    return true;
  }
  const FieldClass before = classes_[index];
  classes_[index].classification = kClassifications[entry].classification;
  const ClassRefusal refusal = refusalOf(classes_);
  if (refusal == ClassRefusal::None) {
    return true;
  }
  classes_[index] = before;
  // Once the list of choices is closed: a box that takes the focus from it would choose again.
  QTimer::singleShot(0, this, [this, refusal] { warnOf(refusal); });
  return false;
}

void FieldDialogImpl::warnOf(ClassRefusal refusal) {
  const QString kind = refusal == ClassRefusal::NoDataField ? tr("Data") : tr("Key");
  notice_->warning(tr("Data Editor: classification error").toStdString(),
                   tr("There must always be at least one %1 field.").arg(kind).toStdString());
}

QString FieldDialogImpl::questionAbout(const std::vector<LossyChange>& changes) const {
  QStringList lines;
  lines << tr("Some values cannot be kept in the new type of their field:") << QString();
  for (std::size_t i = 0; i < std::min(changes.size(), kNamedFields); ++i) {
    const LossyChange& change = changes[i];
    QString first = toText(change.first);
    if (first.size() > kLongestValue) {
      first = first.left(kLongestValue) + QStringLiteral("...");
    }
    lines << tr("%1 as %2: %3 of %4 values, the first is \"%5\"")
                 .arg(toText(table_.field(change.field).name),
                      typeText(classes_[static_cast<std::size_t>(change.field)].type),
                      QString::number(change.lost), QString::number(table_.tupleCount), first);
  }
  if (changes.size() > kNamedFields) {
    lines << tr("and more in %1 other fields").arg(changes.size() - kNamedFields);
  }
  lines << QString()
        << tr("They will be other values, and nothing brings them back. Change the "
              "types all the same?");
  return lines.join(u'\n');
}

void FieldDialogImpl::slotApply() {
  const std::vector<LossyChange> changes = lossyChanges(table_, classes_, settings_);
  if (changes.empty() ||
      notice_->confirm(editorTitle(*notice_), questionAbout(changes).toStdString())) {
    accept();
  }
}

}  // namespace vrel
