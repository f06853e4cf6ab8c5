#include "qt/result_tabs.h"

#include <utility>

#include "qt/text_conversion.h"

namespace quillomat {

ResultTabs::ResultTabs(QWidget* parent) : QTabWidget(parent) {
  setDocumentMode(true);  // no frame beside those of the views
  // Where letters are large and the window is small, titles give way before arrows hide a view.
  setUsesScrollButtons(false);
  setElideMode(Qt::ElideRight);
}

void ResultTabs::Add(QWidget* view, const QString& key, int titleText, Uses uses) {
  views_.append({key, titleText, std::move(uses)});
  addTab(view, QString());
}

void ResultTabs::SetTexts(const ProgramText& text) {
  for (int i = 0; i < count(); ++i) {
    const QString title = ToQt(text.GetText(views_[i].titleText));
    setTabText(i, title);
    setTabToolTip(i, title);
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
