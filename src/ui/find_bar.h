// The bar under the tables in which a text to look for is typed.
//
// It only asks: the window searches and tells the bar what came of it.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QWidget>

#include "model/grid_search.h"

namespace vrel {

class FindBar : public QWidget {
  Q_OBJECT

 public:
  /// Hidden at first. Ctrl+F, F3 and Shift+F3 work in the whole window of the parent.
  explicit FindBar(QWidget* parent = nullptr);

  QString text() const;

 public slots:
  /// Shows the bar, with its text selected and the focus in it.
  void open();
  /// Hides the bar and gives the focus back to where it was.
  void dismiss();
  /// Ask for the next or the previous place of the text; without one the bar opens instead.
  void searchForward();
  void searchBackward();
  /// Says what came of the last search that was asked for.
  void showResult(const SearchResult& result);

 signals:
  void findNext(const QString& text);
  void findPrevious(const QString& text);
  void closed();

 private:
  void buildParts();
  void addShortcuts();
  void textChanged();
  void say(const QString& message);

  QLineEdit* edit_;
  QPushButton* next_;
  QPushButton* previous_;
  QLabel* message_;
  // Which way the last search went.
  bool forward_ = true;
  QPointer<QWidget> focusBefore_;
};

}  // namespace vrel
