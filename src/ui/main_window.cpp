#include "ui/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QStatusBar>
#include <QStyle>
#include <QVBoxLayout>

#include "expr/ui/to_text.h"
#include "model/report_layout.h"
#include "ui/export_files.h"
#include "ui/main_menu.h"
#include "ui/print_files.h"
#include "ui/tool_tip.h"
#include "ui/view_files.h"
#include "ui/view_save.h"

namespace vrel {

namespace {

// A longer title would push the report out of sight.
constexpr qsizetype kLongestTitle = 600;

}  // namespace

VrelMainWindow::VrelMainWindow(EditorContext& context, WindowSeams seams)
    : context_(context),
      seams_(std::move(seams)),
      model_(context.format),
      title_(new QLabel),
      tabs_(new ZTabs),
      panel_(new ReportPanel(context, model_, seams_.runDialog, this)),
      status_(new SelectionStatus(model_)),
      configure_(new ConfigureDesk(context, *panel_, seams_.runDialog, seams_.chooseOpenFile,
                                   viewChanger(), this)),
      formulas_(
          new FormulaDesk(context, seams_.runDialog, seams_.chooseOpenFile, viewChanger(), this)) {
  setObjectName(QStringLiteral("VREL main window"));
  QApplication::setStyle(QStringLiteral("windows"));
  buildMenuBar(*this);
  buildCentre();
  buildStatusBar();
  connectPanel();
  connect(tabs_, &ZTabs::zIndexChanged, this, &VrelMainWindow::showPage);
}

// The tables look at the model to the last, so they go before it.
VrelMainWindow::~VrelMainWindow() {
  delete takeCentralWidget();
}

void VrelMainWindow::buildCentre() {
  title_->setObjectName(QStringLiteral("reportTitle"));
  title_->setTextFormat(Qt::PlainText);
  title_->setAlignment(Qt::AlignCenter);
  title_->setWordWrap(true);
  // A long word must not make the window wider than the screen.
  title_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  QFont font = title_->font();
  font.setBold(true);
  title_->setFont(font);
  auto* centre = new QWidget(this);
  auto* layout = new QVBoxLayout(centre);
  layout->addWidget(title_);
  layout->addWidget(tabs_);
  layout->addWidget(panel_, 1);
  setCentralWidget(centre);
  panel_->setFocus();
}

void VrelMainWindow::buildStatusBar() {
  statusBar()->addWidget(status_, 1);
  statusBar()->setSizeGripEnabled(true);
}

void VrelMainWindow::connectPanel() {
  connect(panel_, &ReportPanel::pageNeeded, this, &VrelMainWindow::showPage);
  connect(panel_, &ReportPanel::layoutNeeded, this, [this] {
    layOutReport();
    warnOfMissingKeys();
  });
  connect(&tables(), &FrozenColumnTablesImpl::selectionChanged, status_,
          [this] { status_->setSelection(tables().selection()); });
}

void VrelMainWindow::layOutReport() {
  model_.setGrid(layOut(context_.view));
  warned_ = false;
  tables().fitToReport();
  showTitle();
  showTabs();
  configure_->reportShown();
  formulas_->reportShown();
}

ViewChanger VrelMainWindow::viewChanger() {
  return {.changeView = [this](const std::function<void()>& change) { changeView(change); },
          .changeFields = [this](const std::function<void()>& change) { changeFields(change); }};
}

void VrelMainWindow::changeView(const std::function<void()>& change) {
  const KeptPlace kept = panel_->keptPlace();
  change();
  showChange(kept);
}

void VrelMainWindow::changeFields(const std::function<void()>& change) {
  const KeptPlace kept = panel_->keptPlace();
  // Nobody may look for the values where the table no longer has them.
  model_.setGrid({});
  change();
  showChange(kept);
}

void VrelMainWindow::showChange(const KeptPlace& kept) {
  context_.view.modified = true;
  layOutReport();
  panel_->returnTo(kept);
  warnOfMissingKeys();
}

void VrelMainWindow::warnOfMissingKeys() {
  if (model_.grid().notEnoughKeys && !warned_) {
    warned_ = true;
    Notice& notice = *context_.notice;
    notice.warning(editorTitle(notice), notEnoughKeysWarning(context_.view, notice));
  }
}

void VrelMainWindow::showTitle() {
  const QString title = toText(reportTitle(context_.view));
  title_->setText(title.left(kLongestTitle));
  title_->setToolTip(title.size() > kLongestTitle ? plainToolTip(title) : QString());
  title_->setVisible(!title.isEmpty());
}

void VrelMainWindow::showTabs() {
  const ReportGrid& grid = model_.grid();
  const auto pages = grid.zFields.empty() ? 0 : static_cast<int>(grid.zGroups.size());
  tabs_->setPages(pages, grid.zIndex, [this](int page) {
    return toText(zPageText(model_.grid(), context_.format, page));
  });
}

void VrelMainWindow::showPage(int zIndex) {
  tables().endEditing();
  context_.view.zIndex = zIndex;
  layOutReport();
  warnOfMissingKeys();
}

void VrelMainWindow::closeEvent(QCloseEvent* event) {
  // Closing the window is ending the process; if the user rather stays, the window stays too.
  event->ignore();
  slotFileClose();
}

PrintOptionsDialogImpl& VrelMainWindow::printDialog() {
  if (printDialog_ == nullptr) {
    const auto chooseFile = [this](QWidget* parent, PrinterType type) {
      return choosePrintFile(context_, parent, seams_.chooseSaveFile, type);
    };
    printDialog_ = new PrintOptionsDialogImpl(chooseFile, this);
    connect(printDialog_, &PrintOptionsDialogImpl::applied, this,
            &VrelMainWindow::takePrintOptions);
  }
  return *printDialog_;
}

void VrelMainWindow::takePrintOptions() {
  PrintOptions& options = context_.view.printOptions;
  const PrintOptions chosen = printDialog().options();
  context_.view.modified = context_.view.modified || chosen != options;
  options = chosen;
}

void VrelMainWindow::slotFilePrint() {
  if (!tables().endEditing()) {
    return;
  }
  PrintOptionsDialogImpl& dialog = printDialog();
  dialog.setPrinters(seams_.spooler.printers());
  dialog.setDefaultTitle(toText(defaultPrintTitle(context_.view)));
  dialog.setOptions(context_.view.printOptions);
  const PrintContext print = {context_.view, context_.format, context_.environment,
                              *context_.notice, seams_.spooler};
  // What has failed can be put right and tried again.
  do {
    seams_.runDialog(dialog);
  } while (dialog.result() == QDialog::Accepted &&
           printReport(print, dialog.target()) == PrintResult::Failed);
}

void VrelMainWindow::slotFileExport() {
  // What is exported is to have the text that stands in the cell, so one that is refused is first
  // to be corrected.
  if (!tables().endEditing()) {
    return;
  }
  logLine(context_.log, "slotFileExport: Calling ExportViewCB");
  ExportViewCB(context_, this, seams_.chooseSaveFile);
}

void VrelMainWindow::slotFileExportAs() {
  if (!tables().endEditing()) {
    return;
  }
  logLine(context_.log, "slotFileExportAs: Calling ExportAsCB");
  ExportAsCB(context_, this, seams_.chooseSaveFile);
}

void VrelMainWindow::slotFileLoadView() {
  ReportView& view = context_.view;
  if (!tables().endEditing() || (view.modified && !saveWarning(toText(view.fileName)))) {
    return;
  }
  const std::string name =
      chooseView(context_, this, seams_.chooseOpenFile, translatable("vrel", "Open View"));
  if (name.empty()) {
    return;
  }
  if (std::optional<OpenedView> opened = openChosenView(context_, name)) {
    showView(*std::move(opened));
  }
}

void VrelMainWindow::showView(OpenedView opened) {
  const std::string name = opened.path;
  // Nobody may look for the values where the table no longer has them.
  model_.setGrid({});
  const bool taken = takeOpenedView(context_.view, std::move(opened), viewReading(context_));
  layOutReport();
  if (taken) {
    panel_->edits().forgetEdits();
    warnOfMissingKeys();
  } else {
    tellMismatch(context_, name);
  }
}

void VrelMainWindow::slotFileSaveView() {
  tables().endEditing();
  if (!saveCurrentView(context_)) {
    logLine(context_.log, "slotFileSaveView: Calling slotFileSaveViewAs");
    slotFileSaveViewAs();
  }
}

void VrelMainWindow::slotFileSaveViewAs() {
  tables().endEditing();
  saveViewAs(context_, this, seams_.chooseSaveFile);
}

void VrelMainWindow::slotFileReadExpressions() {
  if (tables().endEditing()) {
    formulas_->importExpressions();
  }
}

void VrelMainWindow::slotFileReadHighlighting() {
  if (tables().endEditing()) {
    formulas_->importHighlighting();
  }
}

void VrelMainWindow::slotFileDeleteView() {
  deleteView(context_, this, seams_.chooseOpenFile);
}

void VrelMainWindow::slotFileClose() {
  // A text that was refused is first to be corrected.
  if (!tables().endEditing()) {
    return;
  }
  if (!context_.view.modified || saveWarning(toText(context_.view.fileName))) {
    seams_.endProcess();
  }
}

void VrelMainWindow::slotEditFillCells() {
  if (tables().endEditing()) {
    configure_->fillCells();
  }
}

void VrelMainWindow::slotEditRecalculateAllInverse() {
  if (tables().endEditing()) {
    panel_->edits().recalculateInverse();
  }
}

void VrelMainWindow::slotConfigSwapData() {
  if (tables().endEditing()) {
    changeView([this] { context_.view.dataInColumns = !context_.view.dataInColumns; });
  }
}

void VrelMainWindow::slotConfigDisplay() {
  if (tables().endEditing()) {
    configure_->configureDisplay();
  }
}

void VrelMainWindow::slotConfigOrder() {
  if (tables().endEditing()) {
    configure_->configureLayout();
  }
}

void VrelMainWindow::slotConfigBreaks() {
  if (tables().endEditing()) {
    configure_->configureBreaks();
  }
}

void VrelMainWindow::slotConfigExpressions() {
  if (tables().endEditing()) {
    formulas_->configureExpressions();
  }
}

void VrelMainWindow::slotConfigHighlighting() {
  if (tables().endEditing()) {
    formulas_->configureHighlighting();
  }
}

void VrelMainWindow::slotConfigListFunctions() {
  formulas_->listFunctions();
}

void VrelMainWindow::slotConfigFields() {
  if (tables().endEditing()) {
    configure_->configureFields();
  }
}

bool VrelMainWindow::saveWarning(const QString& name) {
  Notice& notice = *context_.notice;
  const std::string shown = saveWarningName(name.toStdString(), context_.title.value_or(""));
  const Answer answer = notice.question(
      editorTitle(notice),
      noticeText(notice, translatable("vrel", "Do you want to save changes to \"%1\"?"), shown));
  if (answer == Answer::Yes) {
    slotFileSaveView();
  }
  return answer != Answer::Cancel;
}

}  // namespace vrel
