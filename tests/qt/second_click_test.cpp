// Who clicks everything twice.
#include "window_fixture.h"

namespace quillomat {
namespace {

class SecondClickTest : public WindowFixture {
 protected:
  SecondClickTest() { EXPECT_TRUE(user->Start()); }

  /// The second click comes as soon as the first has changed what the command says.
  void ClickTwice(CommandButton& command) {
    auto& button = user->WidgetOf<QPushButton>(command);
    const QPointF place = button.rect().center();
    const auto send = [&button, place](QEvent::Type type) {
      QMouseEvent event(type, place, button.mapToGlobal(place), Qt::LeftButton,
                        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                        Qt::NoModifier);
      QApplication::sendEvent(&button, &event);
    };
    bool again = false;
    command.Changed.Connect([&] {
      if (std::exchange(again, true)) return;
      send(QEvent::MouseButtonDblClick);
      send(QEvent::MouseButtonRelease);
    });
    send(QEvent::MouseButtonPress);
    send(QEvent::MouseButtonRelease);
    EXPECT_TRUE(again);
    user->Settle();
  }

  MainForm& frmMain = user->program.frmMain;
};

TEST_F(SecondClickTest, DoubleClickOnCountCounts) {
  std::string text;
  for (int i = 0; i < 200'000; ++i) text += "word ";
  user->program.Sources().ChooseText(folder.Write("a.txt", text));
  ClickTwice(frmMain.cmdCountWords);
  EXPECT_NE(user->Shown().find("200000"), std::string::npos);
}

}  // namespace
}  // namespace quillomat
