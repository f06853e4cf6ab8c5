// The lines of a state file behind the 45: what those cannot tell, by the names of the controls.
#include <gmock/gmock.h>

#include "app/setting_values.h"
#include "app/state_file.h"
#include "app/state_lines.h"
#include "support/program_fixture.h"

namespace quillomat {
namespace {

class NamedStateLines : public ProgramFixture {
 protected:
  std::string Saved() {
    EXPECT_EQ(program.States().SaveState(folder / "saved.qlm"), "");
    return ContentsOf(folder / "saved.qlm");
  }

  RestoreResult RestoreWith(const std::string& more) {
    const std::string text = FileOfLines(InitialLines()) + more;
    return program.States().ReadControls(folder.Write("state.qlm", text));
  }

  /// What a file of 45 lines is followed by.
  std::string SavedBehindTheLines() {
    std::string text = Saved();
    for (std::size_t line = 0; line < kStateValues; ++line) text.erase(0, text.find('\n') + 1);
    return text;
  }
};

TEST_F(NamedStateLines, AreNoneAsLongAsTheOthersTellAll) {
  EXPECT_EQ(Saved(), FileOfLines(InitialLines()));
  Main().txbFolder.SetText("/100% plain/\u00E9");
  Panel().chkAllowWordsWithNumerals.SetValue(CheckState::kGrayed);
  Panel().txbStartComment[0].SetText("\"");
  EXPECT_EQ(SavedBehindTheLines(), "");
}

TEST_F(NamedStateLines, KeepEveryPathThatItsOwnLineDoesNot) {
  const std::string odd = "/a \"b\"\r\n%/caf\xE9\t";
  const std::vector<TextBox*> boxes = {&Main().txbFolder, &Main().txbFile[0], &Main().txbFile[1],
                                       &Panel().txbWordsFile[0], &Panel().txbWordsFile[1]};
  for (TextBox* box : boxes) {
    SCOPED_TRACE(box->Name());
    box->SetText(odd);
    EXPECT_EQ(SavedBehindTheLines(), box->Name() + "=/a \"b\"%0D%0A%25/caf%E9%09\r\n");
    program.Initialize();
    ASSERT_EQ(program.States().ReadControls(folder / "saved.qlm"), RestoreResult::kRestored);
    EXPECT_EQ(box->Text(), odd);
    box->SetText("");
  }
}

TEST_F(NamedStateLines, DoNotChangeThePathsRequiredLine) {
  Main().txbFolder.SetText("/a\"b\nc");
  EXPECT_TRUE(Saved().starts_with("\"/a\"b c\"\r\n"));
}

TEST_F(NamedStateLines, KeepBytesThatAreNoUtf8AsTheyAre) {
  for (const char* path : {"/caf\xE9", "/\xC3", "/\xFF\xFE", "/a\xE9\u00E9"}) {
    Main().txbFile[0].SetText(path);
    static_cast<void>(Saved());
    program.Initialize();
    ASSERT_EQ(program.States().ReadControls(folder / "saved.qlm"), RestoreResult::kRestored);
    EXPECT_EQ(Main().txbFile[0].Text(), path);
  }
}

TEST_F(NamedStateLines, SetAnySettingAndHaveTheLastWord) {
  EXPECT_EQ(RestoreWith("chkDropFinalS=1\r\ncboDisplayFormat=8\r\ntxbFile(1)=out.txt\r\n"),
            RestoreResult::kRestored);
  EXPECT_TRUE(Panel().chkDropFinalS.IsChecked());
  EXPECT_EQ(Main().cboDisplayFormat.ListIndex(), 8);
  EXPECT_EQ(Main().txbFile[1].Text(), "out.txt");
}

TEST_F(NamedStateLines, OfALaterVersionAreLeftAside) {
  EXPECT_EQ(RestoreWith("cboSomethingNew=7\r\n\r\n=1\r\ntxbOutput=x\r\nchkDropFinalS=1\r\n"),
            RestoreResult::kRestored);
  EXPECT_EQ(Main().txbOutput.Text(), "") << "no setting";
  EXPECT_TRUE(Panel().chkDropFinalS.IsChecked());
}

TEST_F(NamedStateLines, WithAValueThatDoesNotFitAreErrors) {
  for (const char* line : {"chkDropFinalS=yes", "chkDropFinalS=3", "chkDropFinalS=",
                           "cboDisplayFormat=word", "txbFile(1)=a%", "txbFile(1)=%zz"}) {
    EXPECT_EQ(RestoreWith(line), RestoreResult::kError) << line;
    EXPECT_FALSE(program.States().IndexWasOutOfRange());
  }
  EXPECT_EQ(RestoreWith("cboDisplayFormat=14"), RestoreResult::kError);
  EXPECT_TRUE(program.States().IndexWasOutOfRange());
}

/// A program with settings that the 45 lines know nothing of.
class NewSettings : public testing::Test {
 protected:
  NewSettings() {
    frmParams.FillCombos();
    frmMain.cboWordOrder.AddItem("first");
    frmMain.cboDisplayFormat.AddItem("first");
    cboNew.AddItem("usual");
    cboNew.AddItem("other");
    settings = {{.control = "chkNew", .initial = 1},
                {.control = "cboNew"},
                {.control = "txbNew", .initial = ""}};
    for (const Setting& setting : AllSettings()) {
      settings.push_back(setting);
      Control& control = ControlOf(setting, frmMain, frmParams);
      if (auto* combo = control.As<ComboBox>()) combo->SetListIndex(0);
    }
    frmParams.chkFoldAccents.SetChecked(true);
    SetToDefault(*FindSetting(AllSettings(), "txbTryIt"), frmParams.txbTryIt);
    for (std::size_t i = 0; i < 3; ++i) {
      SetToDefault(settings[i], ControlOf(settings[i], frmMain, frmParams));
    }
  }

  std::string Written() {
    WriteStateFile(folder / "state.qlm", frmMain, frmParams, settings);
    return ContentsOf(folder / "state.qlm");
  }
  void Read() { ReadStateFile(folder / "state.qlm", frmMain, frmParams, settings); }

  TemporaryFolder folder;
  MainForm frmMain;
  ParamsForm frmParams;
  CheckBox chkNew{frmParams, "chkNew", "new"};
  ComboBox cboNew{frmParams, "cboNew"};
  TextBox txbNew{frmParams, "txbNew"};
  std::vector<Setting> settings;
};

TEST_F(NewSettings, AreWrittenWhereTheyDifferFromTheirDefaults) {
  EXPECT_EQ(std::ranges::count(Written(), '\n'), 45);
  chkNew.SetChecked(false);
  EXPECT_TRUE(Written().ends_with("\r\nchkNew=0\r\n"));
  cboNew.SetListIndex(1);
  txbNew.SetText("50%\r");
  EXPECT_TRUE(Written().ends_with("\r\nchkNew=0\r\ncboNew=1\r\ntxbNew=50%25%0D\r\n"));
}

TEST_F(NewSettings, ComeBackAndOtherwiseGetTheirDefaults) {
  const std::string plain = Written();
  chkNew.SetChecked(false);
  cboNew.SetListIndex(1);
  txbNew.SetText("x");
  const std::string changed = Written();
  static_cast<void>(folder.Write("state.qlm", plain));
  Read();
  EXPECT_TRUE(chkNew.IsChecked());
  EXPECT_EQ(cboNew.ListIndex(), 0);
  EXPECT_EQ(txbNew.Text(), "");
  static_cast<void>(folder.Write("state.qlm", changed));
  Read();
  EXPECT_FALSE(chkNew.IsChecked());
  EXPECT_EQ(cboNew.ListIndex(), 1);
  EXPECT_EQ(txbNew.Text(), "x");
}

}  // namespace
}  // namespace quillomat
