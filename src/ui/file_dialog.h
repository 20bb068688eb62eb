// Asking for the name of a file.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>

namespace vrel {

/// What a file dialog says and where it starts.
struct FileQuestion {
  QString caption;
  /// Kinds of files, as "Name (patterns);;Name (patterns)". A kind without a pattern shows no file.
  QString filter;
  /// For each kind the extensions of its files, without their dots; a typed name that has none of
  /// them gets the first, if there is one. Kinds beyond the list have those of its last entry.
  QList<QStringList> extensions;
  QString folder;
  /// The name that is offered; may be empty.
  QString file;
};

/// What the user chose.
struct ChosenFile {
  /// Empty when nothing was chosen.
  QString path;
  /// The kind of file that was chosen from, as the question names it.
  QString filter;
};

using AskForFile = std::function<ChosenFile(QWidget* parent, const FileQuestion& question)>;

/// Asks for an existing file. A name with a double quote in it is handed out without looking for
/// it.
ChosenFile askForOpenFile(QWidget* parent, const FileQuestion& question);

/// Asks where to save, and whether to replace a file that is there. When another kind is chosen,
/// the name that stands there takes its extension.
ChosenFile askForSaveFile(QWidget* parent, const FileQuestion& question);

}  // namespace vrel
