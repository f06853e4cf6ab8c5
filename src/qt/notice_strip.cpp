#include "qt/notice_strip.h"

#include <QHBoxLayout>
#include <QPainter>
#include <cmath>

#include "qt/accessible_names.h"

namespace quillomat {
namespace {

constexpr int kPadding = 4;

/// `share` of `over`, the rest of `ground`.
QColor Mixed(const QColor& ground, const QColor& over, qreal share) {
  const auto mix = [share](int a, int b) {
    return static_cast<int>(std::lround(a * (1 - share) + b * share));
  };
  return {mix(ground.red(), over.red()), mix(ground.green(), over.green()),
          mix(ground.blue(), over.blue())};
}

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
      actions_{NewCommand<QPushButton>(*this, QStringLiteral("cmdNotice_0")),
               NewCommand<QPushButton>(*this, QStringLiteral("cmdNotice_1"))},
      dismiss_(NewCommand<SignButton>(*this, QStringLiteral("cmdDismissNotice"))) {
  setObjectName(QStringLiteral("stripNotice"));
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  notice_->setObjectName(QStringLiteral("lblNotice"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(2 * kPadding, kPadding / 2, kPadding, kPadding / 2);
  row->addWidget(notice_, 1);
  for (QPushButton* command : Commands()) row->addWidget(command);
  dismiss_->setFlat(true);
  hide();
}

std::array<QPushButton*, 3> NoticeStrip::Commands() const {
  return {actions_[0], actions_[1], dismiss_};
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
  painter.setPen(Mixed(window, accent, kEdgeTint));
  painter.setBrush(Mixed(window, accent, kGroundTint));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRound, kRound);
}

}  // namespace quillomat
