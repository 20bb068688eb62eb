#include "ui/file_dialog.h"

#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>

namespace vrel {

namespace {

// The toolkit's own dialog, which looks and works alike everywhere.
class FileDialog : public QFileDialog {
 public:
  FileDialog(QWidget* parent, const FileQuestion& question);

  void accept() override;

 private:
  void hideFilesWithoutPattern();
  void completeName();
  // The toolkit takes "~" for the user's own folder.
  bool isFolder(const QString& typed) const;

  QString extension_;
};

FileDialog::FileDialog(QWidget* parent, const FileQuestion& question)
    : QFileDialog(parent, question.caption, question.folder),
      extension_(QLatin1Char('.') + question.extension) {
  setObjectName(QStringLiteral("fileDialog"));
  setOption(QFileDialog::DontUseNativeDialog);
  setNameFilters(question.filter.split(QStringLiteral(";;")));
  connect(this, &QFileDialog::filterSelected, this, &FileDialog::hideFilesWithoutPattern);
  hideFilesWithoutPattern();
}

// The toolkit shows every file for a filter that names none.
void FileDialog::hideFilesWithoutPattern() {
  auto* files = findChild<QFileSystemModel*>();
  if (files != nullptr && selectedNameFilter().endsWith(QLatin1String("()"))) {
    // No file has a name with a separator in it.
    files->setNameFilters({QStringLiteral("/")});
  }
}

bool FileDialog::isFolder(const QString& typed) const {
  const bool below = typed == QLatin1String("~") || typed.startsWith(QLatin1String("~/"));
  return QFileInfo(directory(), below ? QDir::homePath() + typed.mid(1) : typed).isDir();
}

// Before the dialog looks whether the file is there: otherwise it would look for another one.
void FileDialog::completeName() {
  auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  const QString typed = name == nullptr ? QString() : name->text();
  if (!typed.isEmpty() && !typed.endsWith(extension_) && !isFolder(typed)) {
    name->setText(typed + extension_);
  }
}

void FileDialog::accept() {
  completeName();
  QFileDialog::accept();
}

QString ask(FileDialog& dialog) {
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace

QString askForOpenFile(QWidget* parent, const FileQuestion& question) {
  FileDialog dialog(parent, question);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return ask(dialog);
}

QString askForSaveFile(QWidget* parent, const FileQuestion& question) {
  FileDialog dialog(parent, question);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.selectFile(question.file);
  return ask(dialog);
}

}  // namespace vrel
