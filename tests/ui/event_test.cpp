#include "ui/event.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace quillomat {
namespace {

using ::testing::ElementsAre;

TEST(Event, CallsHandlersInTheOrderOfConnecting) {
  Event<int, const std::string&> event;
  std::vector<std::string> calls;
  event.Connect([&](int number, const std::string& text) {
    calls.push_back("first " + text + std::to_string(number));
  });
  event.Connect([&](int, const std::string&) { calls.emplace_back("second"); });
  event.Fire(3, "x");
  EXPECT_THAT(calls, ElementsAre("first x3", "second"));
}

TEST(Event, HandlerConnectedDuringFireIsCalledNextTime) {
  Event<> event;
  int calls = 0;
  event.Connect([&] {
    for (int i = 0; i < 100; ++i) event.Connect([&] { ++calls; });
  });
  event.Fire();
  EXPECT_EQ(calls, 0);
  event.Fire();
  EXPECT_EQ(calls, 100);
}

TEST(Event, HandlerMayFireTheEventAgain) {
  Event<int> event;
  std::vector<int> calls;
  event.Connect([&](int depth) {
    calls.push_back(depth);
    if (depth > 0) event.Fire(depth - 1);
  });
  event.Fire(2);
  EXPECT_THAT(calls, ElementsAre(2, 1, 0));
}

}  // namespace
}  // namespace quillomat
