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
  /// Empty when nothing was chosen.
  QString chosenFile() const;

 private:
  void hideFilesWithoutPattern();
  // The name as it was typed or clicked, with the extension.
  QString completeName();
  // The toolkit takes "~" for the user's own folder.
  bool isFolder(const QString& typed) const;

  QString extension_;
  // Chosen although the toolkit could not say so.
  QString quotedName_;
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
QString FileDialog::completeName() {
  auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  QString typed = name == nullptr ? QString() : name->text();
  if (!typed.isEmpty() && !typed.endsWith(extension_) && !isFolder(typed)) {
    typed += extension_;
    name->setText(typed);
  }
  return typed;
}

void FileDialog::accept() {
  const QString name = completeName();
  // The toolkit takes quotes for those around each of several names, and would choose another file.
  if (QFileInfo(name).fileName().contains(QLatin1Char('"')) && !isFolder(name)) {
    quotedName_ = directory().absoluteFilePath(name);
    done(QDialog::Accepted);
    return;
  }
  QFileDialog::accept();
}

QString FileDialog::chosenFile() const {
  if (result() != QDialog::Accepted) {
    return {};
  }
  return quotedName_.isEmpty() ? selectedFiles().value(0) : quotedName_;
}

QString ask(FileDialog& dialog) {
  dialog.exec();
  return dialog.chosenFile();
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
