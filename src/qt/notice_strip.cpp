#include "qt/notice_strip.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <algorithm>

#include "qt/accessible_names.h"
#include "qt/mixed_color.h"

namespace quillomat {
namespace {

constexpr int kPadding = 4;

/// A command whose caption is a mere sign needs no more width than it is high.
class SignButton final : public QPushButton {
 public:
  using QPushButton::QPushButton;

  [[nodiscard]] QSize sizeHint() const override {
    const int side = QPushButton::sizeHint().height();
    return {side, side};
  }
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
};

template <class Button>
QPushButton* NewCommand(QWidget& parent, const QString& name) {
  constexpr int kLastToChoose = 9;  // these come and go; the letters of others stay
  auto* command = new Button(&parent);
  command->setObjectName(name);
  command->setProperty("accessRank", kLastToChoose);
  return command;
}

}  // namespace

NoticeStrip::NoticeStrip(QWidget* parent)
    : QFrame(parent),
      notice_(new ElidedLabel(this)),
      commands_(new QWidget(this)),
      actions_{NewCommand<QPushButton>(*commands_, QStringLiteral("cmdNotice_0")),
               NewCommand<QPushButton>(*commands_, QStringLiteral("cmdNotice_1"))},
      more_(new QToolButton(this)),
      dismiss_(NewCommand<SignButton>(*this, QStringLiteral("cmdDismissNotice"))) {
  setObjectName(QStringLiteral("stripNotice"));
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  policy.setRetainSizeWhenHidden(true);
  setSizePolicy(policy);
  notice_->setObjectName(QStringLiteral("lblNotice"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(2 * kPadding, 1, kPadding, 1);
  row->addWidget(notice_, 1);
  row->addWidget(commands_);
  row->addWidget(more_);
  row->addWidget(dismiss_);
  auto* commands = new QHBoxLayout(commands_);
  commands->setContentsMargins(0, 0, 0, 0);
  for (QPushButton* action : actions_) commands->addWidget(action);
  dismiss_->setFlat(true);
  more_->setText(QStringLiteral("\u2026"));
  more_->setMenu(&menu_);
  more_->setPopupMode(QToolButton::InstantPopup);
  more_->setFocusPolicy(Qt::TabFocus);
  more_->hide();
  connect(&menu_, &QMenu::aboutToShow, this, [this] { FillMenu(); });
  hide();
}

void NoticeStrip::SetNames(const QString& more, const QString& dismiss) {
  more_->setAccessibleName(more);
  more_->setToolTip(more);
  dismiss_->setAccessibleName(dismiss);
}

std::array<QAbstractButton*, 4> NoticeStrip::Commands() const {
  return {actions_[0], actions_[1], more_, dismiss_};
}

void NoticeStrip::FillMenu() {
  menu_.clear();
  for (QPushButton* action : actions_) {
    if (action->isHidden()) continue;
    connect(menu_.addAction(action->text()), &QAction::triggered, action, &QPushButton::click);
  }
}

/// What the notice and its commands need in one line.
int NoticeStrip::WidthOfAll() const {
  const QMargins margins = contentsMargins() + layout()->contentsMargins();
  const int text = notice_->fontMetrics().horizontalAdvance(notice_->text()) + 1;
  return margins.left() + margins.right() + text + commands_->sizeHint().width() +
         dismiss_->sizeHint().width() + 2 * layout()->spacing();
}

void NoticeStrip::Fit() {
  const bool any = !actions_[0]->isHidden() || !actions_[1]->isHidden();
  const bool roomy = WidthOfAll() <= width();
  commands_->setVisible(any && roomy);
  more_->setVisible(any && !roomy);
}

/// As high as a command, whichever is there, or two lines.
QSize NoticeStrip::sizeHint() const {
  const QMargins margins = contentsMargins() + layout()->contentsMargins();
  const int height =
      std::max(dismiss_->sizeHint().height(), 2 * notice_->fontMetrics().lineSpacing());
  return {WidthOfAll(), height + margins.top() + margins.bottom()};
}

QSize NoticeStrip::minimumSizeHint() const {
  return {QFrame::minimumSizeHint().width(), sizeHint().height()};
}

bool NoticeStrip::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) Fit();
  return QFrame::event(event);
}

void NoticeStrip::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  Fit();
}

void NoticeStrip::AnnounceNotice() {
  if (notice_->text() == announced_) return;
  announced_ = notice_->text();
  if (!announced_.isEmpty()) Announce(*notice_);
}

void NoticeStrip::paintEvent(QPaintEvent* /*event*/) {
  constexpr qreal kGroundTint = 0.12;
  constexpr qreal kEdgeTint = 0.45;
  constexpr qreal kRound = 4;
  const QColor window = palette().color(QPalette::Window);
  const QColor accent = palette().color(QPalette::Highlight);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(MixedColor(window, accent, kEdgeTint));
  painter.setBrush(MixedColor(window, accent, kGroundTint));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRound, kRound);
}

}  // namespace quillomat
