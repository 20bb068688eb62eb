// The tabs of the z pages, with buttons that step from page to page.
#pragma once

#include <QTabBar>
#include <QToolButton>
#include <QWidget>
#include <functional>

namespace vrel {

/// Shows no more than `kMostTabs` tabs at a time, those around the current page, so that
/// thousands of pages stay usable; the step buttons reach all of them.
class ZTabs : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kMostTabs = 100;

  explicit ZTabs(QWidget* parent = nullptr);

  /// The text of a page's tab, asked for when the tab is made.
  using PageText = std::function<QString(int page)>;

  /// Shows the pages and the current one among them; emits nothing. The widget hides itself when
  /// there is nothing to choose.
  void setPages(int count, int current, PageText text);
  int current() const { return current_; }

 public slots:
  void incrementZIndex();
  void decrementZIndex();

 signals:
  /// The user chose another page.
  void zIndexChanged(int page);

 private:
  void choose(int page);
  void rebuildTabs();

  QToolButton* back_;
  QToolButton* forward_;
  QTabBar* bar_;
  int count_ = 0;
  int current_ = 0;
  // Page of the first tab.
  int first_ = 0;
  PageText text_;
};

}  // namespace vrel
