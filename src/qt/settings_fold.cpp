#include "qt/settings_fold.h"

#include <QApplication>
#include <QShortcut>
#include <utility>

#include "qt/text_conversion.h"
#include "text/caption_table.h"

namespace quillomat {

SettingsFold::SettingsFold(QWidget& settings, std::function<void()> enterResult)
    : settings_(settings), enterResult_(std::move(enterResult)) {
  setAutoRaise(true);
  setCheckable(true);
  connect(this, &QToolButton::toggled, this, [this] { Show(); });
  connect(new QShortcut(QKeySequence(Qt::Key_F9), settings.window()), &QShortcut::activated, this,
          [this] { toggle(); });
  Show();
}

void SettingsFold::SetTexts(const ProgramText& text) {
  hideText_ = ToQt(text.GetText(kHideSettingsText));
  showText_ = ToQt(text.GetText(kShowSettingsText));
  Show();
}

void SettingsFold::Show() {
  setArrowType(IsFolded() ? Qt::RightArrow : Qt::LeftArrow);
  const QString& text = IsFolded() ? showText_ : hideText_;
  setToolTip(text + QStringLiteral(" (F9)"));
  setAccessibleName(text);
  const QWidget* focused = QApplication::focusWidget();
  if (IsFolded() && focused != nullptr && settings_.isAncestorOf(focused)) {
    enterResult_();
  }
  settings_.setVisible(!IsFolded());
}

}  // namespace quillomat
