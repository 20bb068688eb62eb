// Asking for the name of a file.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>

namespace vrel {

/// What a file dialog says and where it starts.
struct FileQuestion {
  QString caption;
  /// Kinds of files, as "Name (patterns);;Name (patterns)". A kind without a pattern shows no file.
  QString filter;
  /// Files are shown and saved with this extension, which a typed name gets when it lacks it.
  QString extension;
  QString folder;
  /// The name that is offered; may be empty.
  QString file;
};

/// Returns the path that the user chose; empty when none.
using AskForFile = std::function<QString(QWidget* parent, const FileQuestion& question)>;

/// Asks for an existing file. A name with a double quote in it is handed out without looking for
/// it, here and below.
QString askForOpenFile(QWidget* parent, const FileQuestion& question);

/// Asks where to save, and whether to replace a file that is there.
QString askForSaveFile(QWidget* parent, const FileQuestion& question);

}  // namespace vrel
