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
  RunPhaseTest()
      : parts({Main(), Panel(), program.frmHelp, program.frmExport}, desktop,
              std::chrono::steady_clock::now) {
    EXPECT_TRUE(parts.text.LoadProgramText("qlav_text.dat", desktop));
  }

  void ExpectRulesOf(RunPhase phase) {
    const PhaseRules& rules = RulesOf(phase);
    const PhaseGuard guard(parts.run, phase);
    EXPECT_EQ(parts.run.Phase(), phase);
    EXPECT_EQ(Main().cmdCountWords.Caption() == "Stop", rules.caption == CountCaption::kStop);
    EXPECT_EQ(Main().optInFile.Enabled(), rules.sourceOptions);
    EXPECT_EQ(Main().cboDisplayFormat.Enabled(), rules.listOptions);
    EXPECT_EQ(Main().txbFolder.Enabled(), rules.commands);
    EXPECT_EQ(Main().cmdSaveState.Enabled(), rules.commands);
    EXPECT_EQ(Panel().cmdInitialize.Enabled(), rules.wordCommands);
    EXPECT_TRUE(Main().cmdCountWords.Enabled());
    EXPECT_TRUE(Main().chkSuppressWords.Enabled());
    EXPECT_TRUE(Main().cmdQuit.Enabled());
  }

  ProgramParts parts;
};

TEST_F(RunPhaseTest, EachEnablesWhatItsRowSays) {
  for (std::size_t phase = 0; phase < kPhaseRules.size(); ++phase) {
    SCOPED_TRACE(phase);
    ExpectRulesOf(static_cast<RunPhase>(phase));
    ExpectIdle();
  }
}

TEST_F(RunPhaseTest, InsideAnotherDoesNotEnableAnything) {
  const PhaseGuard counting(parts.run, RunPhase::kCounting);
  {
    const PhaseGuard reading(parts.run, RunPhase::kReading);
    EXPECT_EQ(parts.run.Phase(), RunPhase::kCounting);
    ExpectRunning();
  }
  ExpectRunning();
}

TEST_F(RunPhaseTest, LeavesACommandDisabledThatWasDisabledBefore) {
  Panel().cmdInitialize.SetEnabled(false);
  { const PhaseGuard reading(parts.run, RunPhase::kReading); }
  EXPECT_FALSE(Panel().cmdInitialize.Enabled());
  EXPECT_TRUE(Panel().cmdRestoreDefaults.Enabled());
}

TEST_F(RunPhaseTest, GivesTheCaptionInTheLanguageOfTheProgram) {
  const PhaseGuard counting(parts.run, RunPhase::kCounting);
  parts.text.ToggleLanguage(desktop.UserKeys());
  parts.controls.ShowCountCaption();
  EXPECT_EQ(Main().cmdCountWords.Caption(), "Stop");
  parts.run.EnterPhase(RunPhase::kChecking);
  EXPECT_EQ(Main().cmdCountWords.Caption(), "Worth\u00E4ufigkeiten ermitteln");
}

TEST_F(RunPhaseTest, StopIsAskedForOnceAndTheRunIsStoppingUntilItHasEnded) {
  {
    const PhaseGuard counting(parts.run, RunPhase::kCounting);
    parts.run.RequestStop();
    EXPECT_EQ(parts.run.Phase(), RunPhase::kStopping);
    EXPECT_TRUE(parts.run.StopRequested());
    EXPECT_FALSE(RulesOf(parts.run.Phase()).stops);
    ExpectRunning();
  }
  EXPECT_EQ(parts.run.Phase(), RunPhase::kIdle);
  EXPECT_EQ(Main().cmdCountWords.Caption(), "Count word frequencies");
}

TEST_F(RunPhaseTest, AForgottenStopLetsTheRunGoOnInItsPhase) {
  const PhaseGuard listing(parts.run, RunPhase::kListingAgain);
  parts.run.RequestStop();
  EXPECT_FALSE(Main().txbFolder.Enabled());
  parts.run.ForgetStop();
  EXPECT_EQ(parts.run.Phase(), RunPhase::kListingAgain);
  EXPECT_TRUE(Main().txbFolder.Enabled());
  EXPECT_EQ(Main().cmdCountWords.Caption(), "Stop");
}

TEST_F(RunPhaseTest, WhatCannotBeStoppedStaysInItsPhase) {
  const PhaseGuard reading(parts.run, RunPhase::kReading);
  parts.run.RequestQuit();
  EXPECT_TRUE(parts.run.StopRequested());
  EXPECT_EQ(parts.run.Phase(), RunPhase::kReading);
}

}  // namespace
}  // namespace quillomat
