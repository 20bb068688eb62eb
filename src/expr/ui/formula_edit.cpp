#include "expr/ui/formula_edit.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "expr/formula_fields.h"
#include "expr/ui/to_text.h"

namespace vrel {

namespace {

constexpr int kShownLines = 3;
constexpr int kFewestLines = 2;
constexpr int kShownCharacters = 56;
constexpr int kFewestCharacters = 20;
constexpr int kOfferedRows = 10;

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < 128;
}

QColor errorColor(const QPalette& palette) {
  return isDark(palette) ? QColor(0xff, 0x70, 0x70) : QColor(0xd0, 0x20, 0x20);
}

QColor warningColor(const QPalette& palette) {
  return isDark(palette) ? QColor(0xff, 0xb8, 0x40) : QColor(0xb8, 0x70, 0x00);
}

QString oneLine(QString text) {
  text.replace(QLatin1String("\r\n"), QLatin1String(" "));
  for (const QChar lineEnd : {QChar(u'\r'), QChar(u'\n'), QChar(QChar::LineSeparator),
                              QChar(QChar::ParagraphSeparator)}) {
    text.replace(lineEnd, u' ');
  }
  return text;
}

// Keys that the list of completions takes.
bool belongsToPopup(int key) {
  return key == Qt::Key_Enter || key == Qt::Key_Return || key == Qt::Key_Tab ||
         key == Qt::Key_Backtab || key == Qt::Key_Escape;
}

bool isTyped(const QKeyEvent& event) {
  const QString text = event.text();
  const bool isCommand = event.modifiers().testFlag(Qt::ControlModifier) !=
                         event.modifiers().testFlag(Qt::AltModifier);
  return !isCommand && !text.isEmpty() && text.front().isPrint();
}

}  // namespace

FormulaEdit::FormulaEdit(QWidget* parent)
    : QPlainTextEdit(parent),
      offered_(new QStandardItemModel(this)),
      completer_(new QCompleter(offered_, this)) {
  setTabChangesFocus(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  policy.setVerticalStretch(1);
  setSizePolicy(policy);
  completer_->setWidget(this);
  completer_->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
  completer_->setMaxVisibleItems(kOfferedRows);
  completer_->popup()->setObjectName(QStringLiteral("completions"));
  connect(completer_, qOverload<const QModelIndex&>(&QCompleter::activated), this,
          &FormulaEdit::complete);
  connect(this, &QPlainTextEdit::textChanged, this, &FormulaEdit::checkFormula);
}

void FormulaEdit::setLanguage(const FunctionRegistry& functions, const Table& table) {
  functions_ = &functions;
  table_ = &table;
  checkFormula();
}

void FormulaEdit::setMessageLabel(QLabel* label) {
  message_ = label;
  message_->setTextFormat(Qt::PlainText);
  message_->setWordWrap(true);
  // A message that comes and goes must not move what stands below it.
  message_->setMinimumHeight(message_->fontMetrics().lineSpacing());
}

void FormulaEdit::setFormula(std::string_view formula) {
  setPlainText(oneLine(toText(formula)));
  moveCursor(QTextCursor::End);
}

std::string FormulaEdit::formula() const {
  return oneLine(rawText()).toStdString();
}

// The plain text would have common blanks in the place of no-break ones, which names may hold.
QString FormulaEdit::rawText() const {
  return document()->toRawText();
}

int FormulaEdit::heightOf(int lines) const {
  const auto margins = static_cast<int>(2 * document()->documentMargin());
  return lines * fontMetrics().lineSpacing() + margins + 2 * frameWidth();
}

QSize FormulaEdit::sizeHint() const {
  return {kShownCharacters * fontMetrics().averageCharWidth(), heightOf(kShownLines)};
}

QSize FormulaEdit::minimumSizeHint() const {
  return {kFewestCharacters * fontMetrics().averageCharWidth(), heightOf(kFewestLines)};
}

std::size_t FormulaEdit::cursorByte() const {
  return rawText().left(textCursor().position()).toStdString().size();
}

int FormulaEdit::positionOf(std::size_t byte) const {
  return static_cast<int>(toText(formula().substr(0, byte)).size());
}

void FormulaEdit::keyPressEvent(QKeyEvent* event) {
  const bool isOffering = completer_->popup()->isVisible();
  const bool isEnter = event->key() == Qt::Key_Enter || event->key() == Qt::Key_Return;
  if (event->key() == Qt::Key_Space && event->modifiers() == Qt::ControlModifier) {
    offerCompletions(Asked::ByKey);
    return;
  }
  // Enter means the dialog's default button: there are no lines to be ended here.
  if (isEnter || (isOffering && belongsToPopup(event->key()))) {
    event->ignore();
    return;
  }
  const QString before = rawText();
  QPlainTextEdit::keyPressEvent(event);
  if (isTyped(*event) || (isOffering && rawText() != before)) {
    offerCompletions(Asked::ByTyping);
  } else if (isOffering) {
    completer_->popup()->hide();
  }
}

// Tab takes what is offered.
bool FormulaEdit::focusNextPrevChild(bool next) {
  return !completer_->popup()->isVisible() && QPlainTextEdit::focusNextPrevChild(next);
}

void FormulaEdit::focusOutEvent(QFocusEvent* event) {
  QPlainTextEdit::focusOutEvent(event);
  if (event->reason() != Qt::PopupFocusReason) {
    completer_->popup()->hide();
  }
}

void FormulaEdit::offerCompletions(Asked asked) {
  completions_.clear();
  const std::string text = formula();
  const std::optional<WrittenWord> word =
      functions_ == nullptr ? std::nullopt : wordBefore(text, cursorByte());
  if (word && (asked == Asked::ByKey || !word->prefix.empty())) {
    completions_ = completionsOf(*word, *functions_, table_->fields);
  }
  const std::string_view written =
      word ? std::string_view(text).substr(word->start, cursorByte() - word->start) : "";
  const bool isComplete = completions_.size() == 1 && completions_.front().text == written;
  if (completions_.empty() || isComplete) {
    completer_->popup()->hide();
    return;
  }
  showPopup();
}

void FormulaEdit::showPopup() {
  offered_->clear();
  for (const Completion& each : completions_) {
    auto* item =
        new QStandardItem(toText(each.name + (each.usage.empty() ? "" : " ") + each.usage));
    item->setEditable(false);
    offered_->appendRow(item);
  }
  QAbstractItemView* popup = completer_->popup();
  QRect place = cursorRect();
  place.translate(viewport()->pos());
  place.setWidth(popup->sizeHintForColumn(0) + popup->verticalScrollBar()->sizeHint().width() +
                 2 * popup->fontMetrics().averageCharWidth());
  completer_->complete(place);
  popup->setCurrentIndex(completer_->completionModel()->index(0, 0));
}

void FormulaEdit::complete(const QModelIndex& chosen) {
  const auto row = static_cast<std::size_t>(chosen.row());
  const std::string text = formula();
  const std::optional<WrittenWord> word = wordBefore(text, cursorByte());
  if (row >= completions_.size() || !word) {
    return;
  }
  Completion completion = completions_[row];
  std::size_t end = cursorByte();
  const char next = end < text.size() ? text[end] : '\0';
  if (word->isQuoted && next == text[word->start]) {
    ++end;
  } else if (!completion.usage.empty() && next == '(') {
    completion.text = completion.name;
    completion.cursor = completion.text.size();
  }
  replace(positionOf(word->start), positionOf(end), completion);
}

void FormulaEdit::replace(int start, int end, const Completion& with) {
  QTextCursor cursor = textCursor();
  cursor.setPosition(start);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  cursor.insertText(toText(with.text));
  const std::string_view behind = std::string_view(with.text).substr(with.cursor);
  cursor.movePosition(QTextCursor::Left, QTextCursor::MoveAnchor,
                      static_cast<int>(toText(behind).size()));
  setTextCursor(cursor);
}

void FormulaEdit::insertCall(const FunctionRecord& function) {
  const QTextCursor cursor = textCursor();
  replace(cursor.selectionStart(), cursor.selectionEnd(), functionCall(function));
}

bool FormulaEdit::canInsertFromMimeData(const QMimeData* source) const {
  return source->hasText();
}

void FormulaEdit::insertFromMimeData(const QMimeData* source) {
  const QByteArray name = source->data(QLatin1String(kFunctionFormat));
  const FunctionRecord* function =
      functions_ == nullptr ? nullptr : functions_->find(name.toStdString());
  if (function != nullptr) {
    insertCall(*function);
    // What was dropped here is to be completed here.
    activateWindow();
    setFocus();
    return;
  }
  textCursor().insertText(oneLine(source->text()));
  ensureCursorVisible();
}

void FormulaEdit::checkFormula() {
  if (functions_ == nullptr) {
    return;
  }
  const FormulaCheck check = checkFormulaText(formula(), *functions_, table_->fields);
  markErrors(check);
  const QString message = messageOf(check);
  setAccessibleDescription(message);
  if (message_ != nullptr) {
    message_->setText(message);
  }
}

void FormulaEdit::markErrors(const FormulaCheck& check) {
  QList<QTextEdit::ExtraSelection> marks;
  if (check.error != ParseError::None) {
    marks << underlined(check.start, check.length, errorColor(palette()));
  }
  for (const UnknownName& each : check.unknown) {
    marks << underlined(each.start, each.length, warningColor(palette()));
  }
  setExtraSelections(marks);
}

QTextEdit::ExtraSelection FormulaEdit::underlined(std::size_t start, std::size_t length,
                                                  QColor color) const {
  const int end = positionOf(start + length);
  // What is missing at the end is marked at the last character.
  const int begin = std::max(0, std::min(positionOf(start), end - 1));
  QTextEdit::ExtraSelection mark;
  mark.cursor = textCursor();
  mark.cursor.setPosition(begin);
  mark.cursor.setPosition(end, QTextCursor::KeepAnchor);
  mark.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
  mark.format.setUnderlineColor(color);
  return mark;
}

QString FormulaEdit::messageOf(const FormulaCheck& check) {
  switch (check.error) {
    case ParseError::Syntax:
      return check.length == 0 ? tr("The formula is not complete.") : tr("Syntax error.");
    case ParseError::UnknownFunction:
      return tr("There is no function \"%1\".").arg(toText(check.function));
    case ParseError::ArgumentCount:
      return tr("Wrong number of arguments: %1").arg(toText(check.function + check.usage));
    case ParseError::None:
      break;
  }
  if (check.unknown.empty()) {
    return {};
  }
  const UnknownName& first = check.unknown.front();
  const QString name = toText(first.name);
  switch (first.kind) {
    case UnknownName::Kind::NoField:
      return tr("There is no field \"%1\".").arg(name);
    case UnknownName::Kind::NoNumbers:
      return tr("The field \"%1\" holds no numbers.").arg(name);
    case UnknownName::Kind::Function:
      return tr("\"%1\" is a function; write \"%1()\".").arg(name);
  }
  return {};
}

}  // namespace vrel
