#include "qt/result_tabs.h"

#include <QKeySequence>
#include <QShortcut>
#include <QTabBar>
#include <utility>

#include "qt/mnemonics.h"
#include "qt/text_conversion.h"

namespace quillomat {
namespace {

/// The letter that is underlined makes a title wider than the toolkit reckons with, which would
/// then cut it.
class RoomyTabBar final : public QTabBar {
 public:
  using QTabBar::QTabBar;

 protected:
  [[nodiscard]] QSize tabSizeHint(int index) const override {
    return QTabBar::tabSizeHint(index) + QSize(fontMetrics().averageCharWidth(), 0);
  }
};

}  // namespace

ResultTabs::ResultTabs(QWidget* parent) : QTabWidget(parent) {
  setTabBar(new RoomyTabBar(this));
  setDocumentMode(true);  // no frame beside those of the views
  // Where letters are large and the window is small, titles give way before arrows hide a view.
  setUsesScrollButtons(false);
  setElideMode(Qt::ElideRight);
  const auto goOn = [this](const QList<QKeySequence>& keys, int step) {
    for (const QKeySequence& key : keys) {
      connect(new QShortcut(key, this), &QShortcut::activated, this, [this, step] { GoOn(step); });
    }
  };
  goOn({QKeySequence(Qt::CTRL | Qt::Key_Tab), QKeySequence(Qt::CTRL | Qt::Key_PageDown)}, 1);
  goOn({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), QKeySequence(Qt::CTRL | Qt::Key_PageUp)},
       -1);
}

/// Round from the last view to the first.
void ResultTabs::GoOn(int step) {
  setCurrentIndex((currentIndex() + step + count()) % count());
}

void ResultTabs::Add(QWidget* view, const QString& key, int titleText, Uses uses) {
  views_.append({key, QString(), titleText, std::move(uses)});
  addTab(view, QString());
}

void ResultTabs::SetTexts(const ProgramText& text) {
  for (int i = 0; i < count(); ++i) {
    views_[i].title = ToQt(text.GetText(views_[i].titleText));
    setTabText(i, WithoutMnemonic(views_[i].title));
    setTabToolTip(i, views_[i].title);
  }
}

QList<QString> ResultTabs::Titles() const {
  QList<QString> titles;
  for (const View& view : views_) titles.append(view.title);
  return titles;
}

void ResultTabs::ShowTitles(const QList<QString>& shown) {
  for (int i = 0; i < count() && i < shown.size(); ++i) {
    if (tabText(i) != shown[i]) setTabText(i, shown[i]);
  }
}

QString ResultTabs::Current() const {
  return views_[currentIndex()].key;
}

void ResultTabs::Show(const QString& key) {
  for (int i = 0; i < count(); ++i) {
    if (views_[i].key == key) setCurrentIndex(i);
  }
}

void ResultTabs::Enter() const {
  currentWidget()->setFocus(Qt::OtherFocusReason);
}

void ResultTabs::Find() const {
  const View& view = views_[currentIndex()];
  if (view.uses.find) view.uses.find();
}

bool ResultTabs::Copy() const {
  const View& view = views_[currentIndex()];
  if (!view.uses.copy) return false;
  view.uses.copy();
  return true;
}

}  // namespace quillomat
