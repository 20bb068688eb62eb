#include "ui/file_dialog.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QRegularExpression>

namespace vrel {

namespace {

// The patterns in the last parentheses of a filter. The toolkit knows only those that are separated
// by blanks.
QStringList patternsOf(const QString& filter) {
  static const QRegularExpression separators(QStringLiteral("[ ;]+"));
  const QString patterns = filter.section(QLatin1Char('('), -1).section(QLatin1Char(')'), 0, 0);
  return patterns.split(separators, Qt::SkipEmptyParts);
}

// The toolkit's own dialog, which looks and works alike everywhere.
class FileDialog : public QFileDialog {
  Q_DECLARE_TR_FUNCTIONS(FileDialog)

 public:
  FileDialog(QWidget* parent, const FileQuestion& question);

  void accept() override;
  ChosenFile chosenFile() const;

 private:
  void takeKind();
  void showFilesOfKind();
  QStringList extensionsOfKind() const;
  // The extension of that name among some, with its dot; empty for none.
  static QString extensionIn(const QStringList& extensions, const QString& name);
  // The name as it was typed or clicked, with the extension.
  QString completeName();
  // The toolkit takes "~" for the user's own folder.
  bool isFolder(const QString& typed) const;
  bool mayBeReplaced(const QString& path);

  QList<QStringList> extensions_;
  // Of the kind that is chosen now.
  QStringList current_;
  // Chosen although the toolkit could not say so.
  QString quotedName_;
};

FileDialog::FileDialog(QWidget* parent, const FileQuestion& question)
    : QFileDialog(parent, question.caption, question.folder), extensions_(question.extensions) {
  setObjectName(QStringLiteral("fileDialog"));
  setOption(QFileDialog::DontUseNativeDialog);
  setNameFilters(question.filter.split(QStringLiteral(";;")));
  if (auto* kinds = findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))) {
    // The toolkit would replace whatever stands behind a name's last dot.
    disconnect(kinds, &QComboBox::activated, this, nullptr);
    connect(kinds, &QComboBox::activated, this, &FileDialog::takeKind);
  }
  current_ = extensionsOfKind();
  showFilesOfKind();
}

void FileDialog::takeKind() {
  showFilesOfKind();
  const QStringList before = std::exchange(current_, extensionsOfKind());
  auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  const QString typed = name == nullptr ? QString() : name->text();
  const QString extension = extensionIn(before, typed);
  if (acceptMode() == QFileDialog::AcceptSave && !extension.isEmpty() &&
      extensionIn(current_, typed).isEmpty()) {
    if (auto* files = findChild<QListView*>(QStringLiteral("listView"))) {
      files->clearSelection();
    }
    name->setText(typed.chopped(extension.size()) + QLatin1Char('.') + current_.value(0));
  }
}

void FileDialog::showFilesOfKind() {
  const QStringList patterns = patternsOf(selectedNameFilter());
  if (auto* files = findChild<QFileSystemModel*>()) {
    // For no pattern the toolkit would show every file. No file has a name with a separator in it.
    files->setNameFilters(patterns.isEmpty() ? QStringList(QStringLiteral("/")) : patterns);
  }
}

QStringList FileDialog::extensionsOfKind() const {
  const qsizetype kind = nameFilters().indexOf(selectedNameFilter());
  return extensions_.value(std::min(kind, extensions_.size() - 1));
}

QString FileDialog::extensionIn(const QStringList& extensions, const QString& name) {
  for (const QString& extension : extensions) {
    QString withDot = QLatin1Char('.') + extension;
    if (name.endsWith(withDot)) {
      return withDot;
    }
  }
  return {};
}

bool FileDialog::isFolder(const QString& typed) const {
  const bool below = typed == QLatin1String("~") || typed.startsWith(QLatin1String("~/"));
  return QFileInfo(directory(), below ? QDir::homePath() + typed.mid(1) : typed).isDir();
}

QString FileDialog::completeName() {
  auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  QString typed = name == nullptr ? QString() : name->text();
  if (!typed.isEmpty() && !current_.isEmpty() && extensionIn(current_, typed).isEmpty() &&
      !isFolder(typed)) {
    typed += QLatin1Char('.') + current_.value(0);
    name->setText(typed);
  }
  return typed;
}

bool FileDialog::mayBeReplaced(const QString& path) {
  return acceptMode() != QFileDialog::AcceptSave || !QFileInfo::exists(path) ||
         QMessageBox::warning(
             this, windowTitle(),
             tr("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(path).fileName()),
             QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

// Before the dialog looks whether the file is there, its name is completed: otherwise it would look
// for another one.
void FileDialog::accept() {
  const QString name = completeName();
  // The toolkit takes quotes for those around each of several names, and would choose another file.
  if (QFileInfo(name).fileName().contains(QLatin1Char('"')) && !isFolder(name)) {
    const QString path = directory().absoluteFilePath(name);
    if (mayBeReplaced(path)) {
      quotedName_ = path;
      done(QDialog::Accepted);
    }
    return;
  }
  QFileDialog::accept();
}

ChosenFile FileDialog::chosenFile() const {
  if (result() != QDialog::Accepted) {
    return {};
  }
  return {.path = quotedName_.isEmpty() ? selectedFiles().value(0) : quotedName_,
          .filter = selectedNameFilter()};
}

ChosenFile ask(FileDialog& dialog) {
  dialog.exec();
  return dialog.chosenFile();
}

}  // namespace

ChosenFile askForOpenFile(QWidget* parent, const FileQuestion& question) {
  FileDialog dialog(parent, question);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return ask(dialog);
}

ChosenFile askForSaveFile(QWidget* parent, const FileQuestion& question) {
  FileDialog dialog(parent, question);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.selectFile(question.file);
  return ask(dialog);
}

}  // namespace vrel
