// The phases of a run: what can be used in each, and what the count command says.
#include "app/count/run_phase.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "app/count/sources_fixture.h"
#include "app/count/window_state.h"

namespace quillomat {
namespace {

class RunPhaseTest : public SourcesFixture {
 protected:
  void ExpectRulesOf(RunPhase phase) {
    const PhaseRules& rules = RulesOf(phase);
    const PhaseGuard guard(program.context, phase);
    EXPECT_EQ(State().phase, phase);
    EXPECT_EQ(Main().cmdCountWords.Caption() == "Stop", rules.stops);
    EXPECT_EQ(Main().optInFile.Enabled(), rules.sourceOptions);
    EXPECT_EQ(Main().cboDisplayFormat.Enabled(), rules.listOptions);
    EXPECT_EQ(Main().txbFolder.Enabled(), rules.commands);
    EXPECT_EQ(Main().cmdSaveState.Enabled(), rules.commands);
    EXPECT_EQ(Panel().cmdInitialize.Enabled(), rules.wordCommands);
    EXPECT_TRUE(Main().cmdCountWords.Enabled());
    EXPECT_TRUE(Main().chkSuppressWords.Enabled());
    EXPECT_TRUE(Main().cmdQuit.Enabled());
  }
};

TEST_F(RunPhaseTest, EachEnablesWhatItsRowSays) {
  for (std::size_t phase = 0; phase < kPhaseRules.size(); ++phase) {
    SCOPED_TRACE(phase);
    ExpectRulesOf(static_cast<RunPhase>(phase));
    ExpectIdle();
  }
}

TEST_F(RunPhaseTest, InsideAnotherDoesNotEnableAnything) {
  const PhaseGuard counting(program.context, RunPhase::kCounting);
  {
    const PhaseGuard reading(program.context, RunPhase::kReading);
    EXPECT_EQ(State().phase, RunPhase::kCounting);
    ExpectRunning();
  }
  ExpectRunning();
}

TEST_F(RunPhaseTest, LeavesACommandDisabledThatWasDisabledBefore) {
  Panel().cmdInitialize.SetEnabled(false);
  { const PhaseGuard reading(program.context, RunPhase::kReading); }
  EXPECT_FALSE(Panel().cmdInitialize.Enabled());
  EXPECT_TRUE(Panel().cmdRestoreDefaults.Enabled());
}

TEST_F(RunPhaseTest, GivesTheCaptionInTheLanguageOfTheProgram) {
  const PhaseGuard counting(program.context, RunPhase::kCounting);
  Main().cmdLanguage.PerformClick();
  EXPECT_EQ(Main().cmdCountWords.Caption(), "Stop");
  EnterPhase(program.context, RunPhase::kChecking);
  EXPECT_EQ(Main().cmdCountWords.Caption(), "Worth\u00E4ufigkeiten ermitteln");
}

}  // namespace
}  // namespace quillomat
