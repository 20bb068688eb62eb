#include "expr/ui/expression_error_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QPolygon>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "expr/ui/to_text.h"

namespace vrel {

namespace {

// Long formulas are scrolled, not wrapped: the marker stands below one line.
constexpr int kWidestFormula = 80;
constexpr int kNarrowestFormula = 30;

int markerSize(const QWidget& widget) {
  return std::max(3, widget.fontMetrics().height() / 3);
}

QLabel* plainLabel(const QString& text, const char* name) {
  auto* label = new QLabel(text);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  return label;
}

QScrollArea* scrolled(MarkedFormula* formula) {
  auto* area = new QScrollArea;
  area->setWidget(formula);
  area->setBackgroundRole(QPalette::Base);
  area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setFocusPolicy(Qt::StrongFocus);
  area->setAccessibleName(formula->text());
  const int character = formula->fontMetrics().averageCharWidth();
  const QSize wanted = formula->sizeHint();
  const int width =
      std::clamp(wanted.width(), kNarrowestFormula * character, kWidestFormula * character);
  const int bar = wanted.width() > width ? area->horizontalScrollBar()->sizeHint().height() : 0;
  area->setMinimumSize(width + 2 * area->frameWidth(),
                       wanted.height() + bar + 2 * area->frameWidth());
  area->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  return area;
}

}  // namespace

MarkedFormula::MarkedFormula(std::string_view text, std::optional<std::size_t> errorPosition,
                             QWidget* parent)
    : QWidget(parent), text_(toText(text)) {
  setObjectName(QStringLiteral("formulaText"));
  setAccessibleName(text_);
  if (errorPosition) {
    errorAt_ = toText(text.substr(0, *errorPosition)).size();
  }
  resize(sizeHint());
}

std::optional<int> MarkedFormula::markerPosition() const {
  return errorAt_ ? std::optional(fontMetrics().horizontalAdvance(text_.left(*errorAt_)))
                  : std::nullopt;
}

QSize MarkedFormula::sizeHint() const {
  const int marker = markerSize(*this);
  return {fontMetrics().horizontalAdvance(text_) + 4 * marker, fontMetrics().height() + 3 * marker};
}

void MarkedFormula::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int margin = markerSize(*this);
  const int bottom = margin / 2 + fontMetrics().height();
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(margin, margin / 2 + fontMetrics().ascent(), text_);
  if (const auto marker = markerPosition()) {
    const int x = margin + *marker;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xd0, 0x20, 0x20));
    painter.drawPolygon(QPolygon(
        {{x, bottom}, {x - margin, bottom + 2 * margin}, {x + margin, bottom + 2 * margin}}));
  }
}

ExpressionErrorDialog::ExpressionErrorDialog(const QString& message, FormulaError kind,
                                             std::string_view formula,
                                             std::optional<std::size_t> errorPosition,
                                             QWidget* parent)
    : QDialog(parent),
      formula_(
          new MarkedFormula(formula, kind == FormulaError::Syntax ? errorPosition : std::nullopt)),
      area_(scrolled(formula_)) {
  setObjectName(QStringLiteral("expressionErrorDialog"));
  setWindowTitle(tr("Expression Error"));
  const bool isSyntax = kind == FormulaError::Syntax;
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  auto* layout = new QVBoxLayout(this);
  layout->setSizeConstraint(QLayout::SetMinimumSize);
  layout->addWidget(plainLabel(message, "message"));
  layout->addWidget(plainLabel(
      isSyntax ? tr("Syntax error in expression:") : tr("Evaluation error in expression:"),
      "errorKind"));
  layout->addWidget(area_);
  layout->addStretch(1);
  layout->addWidget(buttons);
}

void ExpressionErrorDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  layout()->activate();
  if (const auto marker = formula_->markerPosition()) {
    area_->ensureVisible(*marker, 0, area_->viewport()->width() / 2, 0);
  }
}

}  // namespace vrel
