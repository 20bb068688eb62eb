#include "ui/window_notice.h"

#include <QApplication>

#include "expr/ui/to_text.h"

namespace vrel {

namespace {

std::string translated(std::string_view text) {
  return QCoreApplication::translate("vrel", std::string(text).c_str()).toStdString();
}

// A long task is told in thousandths: counts of tuples or bytes may exceed the dialog's int.
constexpr int kProgressSteps = 1000;

int progressStep(std::uint64_t done, std::uint64_t total) {
  return static_cast<int>(static_cast<double>(done) / static_cast<double>(total) * kProgressSteps);
}

}  // namespace

QMessageBox::StandardButton runModally(QMessageBox& box) {
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

WindowNotice::WindowNotice(QWidget* window, RunBox runBox)
    : window_(window), runBox_(std::move(runBox)) {}

WindowNotice::~WindowNotice() {
  delete progress_;
}

void WindowNotice::critical(std::string_view title, std::string_view text) {
  show(QMessageBox::Critical, title, text, QMessageBox::Ok);
}

void WindowNotice::warning(std::string_view title, std::string_view text) {
  show(QMessageBox::Warning, title, text, QMessageBox::Ok);
}

Answer WindowNotice::question(std::string_view title, std::string_view text) {
  switch (show(QMessageBox::Warning, title, text,
               QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)) {
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    default:
      return Answer::Cancel;
  }
}

bool WindowNotice::confirm(std::string_view title, std::string_view text) {
  return show(QMessageBox::Warning, title, text, QMessageBox::Ok | QMessageBox::Cancel) ==
         QMessageBox::Ok;
}

void WindowNotice::beep() {
  QApplication::beep();
}

bool WindowNotice::progress(std::string_view task, std::uint64_t done, std::uint64_t total) {
  if (done >= total) {
    const bool goOn = !progress_ || !progress_->wasCanceled();
    delete progress_;
    return goOn;
  }
  if (!progress_) {
    progress_ = new QProgressDialog(window_);
    progress_->setObjectName(QStringLiteral("progressDialog"));
    progress_->setWindowTitle(toText(editorTitle(*this)));
    // Dialogs that stand open beside the window must not change what is being computed either.
    progress_->setWindowModality(Qt::ApplicationModal);
    progress_->setMinimumDuration(500);
    progress_->setRange(0, kProgressSteps);
  }
  progress_->setLabelText(toText(task));
  progress_->setValue(progressStep(done, total));
  return !progress_->wasCanceled();
}

std::string WindowNotice::translate(std::string_view text) {
  return translated(text);
}

QMessageBox::StandardButton WindowNotice::show(QMessageBox::Icon icon, std::string_view title,
                                               std::string_view text,
                                               QMessageBox::StandardButtons buttons) {
  QMessageBox box(icon, toText(title), toText(text), buttons, window_);
  // File names and titles may look like markup.
  box.setTextFormat(Qt::PlainText);
  if (buttons.testFlag(QMessageBox::Yes)) {
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::Cancel);
  }
  return runBox_(box);
}

void HeldNotice::showIn(Notice& notice) const {
  for (const Held& each : held_) {
    (notice.*each.kind)(each.title, each.text);
  }
}

void HeldNotice::critical(std::string_view title, std::string_view text) {
  held_.push_back({&Notice::critical, std::string(title), std::string(text)});
}

void HeldNotice::warning(std::string_view title, std::string_view text) {
  held_.push_back({&Notice::warning, std::string(title), std::string(text)});
}

std::string HeldNotice::translate(std::string_view text) {
  return translated(text);
}

}  // namespace vrel
