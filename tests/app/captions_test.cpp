// The texts that are delivered, and the tables that say what they are for.
#include "app/captions.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "app/settings_table.h"
#include "listing/display_format.h"
#include "sources/extension_filter.h"
#include "text/program_text.h"
#include "ui/export_form.h"
#include "ui/help_form.h"
#include "ui/main_form.h"
#include "ui/params_form.h"

namespace quillomat {
namespace {

const std::string kTextFile = QUILLOMAT_TEST_DATA "/qlav_text.dat";

constexpr std::string_view kOnThisPage =
    "When text is being scanned you can ignore some words and you can "
    "fine tune how the text is scanned by checking the boxes below.  Also you can "
    "specify words to be ignored or words only to be counted by specifying files "
    "containing these words.";

const CaptionedControl* Captioned(const Control* control) {
  return dynamic_cast<const CaptionedControl*>(control);
}

class DeliveredTextsTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_GT(text.LoadFile(kTextFile), 0); }

  std::string In(Language language, int number) {
    text.SetLanguage(language);
    return text.GetText(number);
  }

  /// Every entry names a captioned control of the form, and its English text is the caption that
  /// the control starts with.
  void ExpectCaptionsOf(const Form& form, std::span<const ControlCaption> captions) {
    std::set<std::string_view> seen;
    for (const ControlCaption& entry : captions) {
      SCOPED_TRACE(entry.control);
      EXPECT_TRUE(seen.insert(entry.control).second);
      const CaptionedControl* const control = Captioned(form.Find(entry.control));
      ASSERT_NE(control, nullptr);
      if (!control->Caption().empty()) {
        EXPECT_EQ(In(Language::kEnglish, entry.text), control->Caption());
      }
      EXPECT_NE(In(Language::kEnglish, entry.text), "");
      EXPECT_NE(In(Language::kGerman, entry.text), "");
    }
  }

  /// Every control that a hand can reach has an entry, and no entry is without its control.
  void ExpectToolTipsOf(const Form& form, std::span<const ControlCaption> toolTips) {
    for (const ControlCaption& entry : toolTips) {
      SCOPED_TRACE(entry.control);
      EXPECT_NE(form.Find(entry.control), nullptr);
      EXPECT_NE(In(Language::kEnglish, entry.text), "");
      EXPECT_NE(In(Language::kGerman, entry.text), In(Language::kEnglish, entry.text));
    }
    for (const Control* control : form.Controls()) {
      const bool goesWithItsValue = control->Name() == "chkSuppressWords";
      if (!control->CanTakeFocus() || goesWithItsValue) continue;
      EXPECT_NE(std::ranges::find(toolTips, control->Name(), &ControlCaption::control),
                toolTips.end())
          << control->Name();
    }
  }

  ProgramText text;
};

/// The controls that start with a caption and have no entry.
std::vector<std::string> WithoutEntry(const Form& form, std::span<const ControlCaption> captions) {
  std::vector<std::string> names;
  for (const Control* control : form.Controls()) {
    const CaptionedControl* const captioned = Captioned(control);
    if (captioned == nullptr || captioned->Caption().empty()) continue;
    if (std::ranges::find(captions, control->Name(), &ControlCaption::control) == captions.end()) {
      names.push_back(control->Name());
    }
  }
  return names;
}

TEST_F(DeliveredTextsTest, MainWindow) {
  const MainForm form;
  ExpectCaptionsOf(form, CaptionsOf(SettingWindow::kMain));
  EXPECT_THAT(WithoutEntry(form, CaptionsOf(SettingWindow::kMain)),
              testing::ElementsAre("cmdCountWords", "lblTwirler"));
  EXPECT_EQ(In(Language::kEnglish, 21), form.cmdCountWords.Caption());
}

TEST_F(DeliveredTextsTest, Panel) {
  const ParamsForm form;
  ExpectCaptionsOf(form, CaptionsOf(SettingWindow::kPanel));
  EXPECT_THAT(WithoutEntry(form, CaptionsOf(SettingWindow::kPanel)), testing::IsEmpty());
  EXPECT_EQ(In(Language::kEnglish, kParamsFormCaption), form.Caption());
  EXPECT_NE(In(Language::kGerman, kParamsFormCaption), "");
}

TEST_F(DeliveredTextsTest, HelpWindow) {
  const HelpForm form;
  ExpectCaptionsOf(form, kHelpFormCaptions);
  EXPECT_THAT(WithoutEntry(form, kHelpFormCaptions), testing::IsEmpty());
  EXPECT_EQ(In(Language::kEnglish, kHelpFormCaption), form.Caption());
  EXPECT_NE(In(Language::kGerman, kHelpFormCaption), "");
}

TEST_F(DeliveredTextsTest, OrdersAreNamedAlikeInAllWindows) {
  ASSERT_EQ(kOrderTexts.size(), kWordOrderNames.size());
  MainForm frmMain;
  ParamsForm frmParams;
  ExportForm frmExport;
  for (const std::string_view name : kWordOrderNames) {
    frmMain.cboWordOrder.AddItem(std::string(name));
    frmExport.cboOrder.AddItem(std::string(name));
  }
  for (const Language language : {Language::kGerman, Language::kEnglish}) {
    text.SetLanguage(language);
    SetItems(text, frmMain, frmParams, frmExport);
    for (std::size_t i = 0; i < kOrderTexts.size(); ++i) {
      EXPECT_EQ(frmMain.cboWordOrder.Items()[i], In(language, kOrderTexts[i]));
      EXPECT_EQ(frmExport.cboOrder.Items()[i], In(language, kOrderTexts[i]));
    }
  }
  EXPECT_EQ(frmMain.cboWordOrder.Items()[0], kWordOrderNames[0]);
  EXPECT_EQ(frmMain.cboWordOrder.Items()[1], kWordOrderNames[1]);
}

TEST_F(DeliveredTextsTest, ExportWindow) {
  const ExportForm form;
  ExpectCaptionsOf(form, kExportFormCaptions);
  EXPECT_THAT(WithoutEntry(form, kExportFormCaptions), testing::ElementsAre("cmdExport"));
  EXPECT_EQ(In(Language::kEnglish, kExportCommandText), form.cmdExport.Caption());
  EXPECT_EQ(In(Language::kEnglish, kExportFormCaption), form.Caption());
  EXPECT_NE(In(Language::kGerman, kExportFormCaption), form.Caption());
}

TEST_F(DeliveredTextsTest, ToolTips) {
  const MainForm frmMain;
  const ParamsForm frmParams;
  const HelpForm frmHelp;
  ExpectToolTipsOf(frmMain, ToolTipsOf(SettingWindow::kMain));
  ExpectToolTipsOf(frmParams, ToolTipsOf(SettingWindow::kPanel));
  ExpectToolTipsOf(frmHelp, kHelpFormToolTips);
  ExpectToolTipsOf(ExportForm(), kExportFormToolTips);
}

TEST_F(DeliveredTextsTest, BoxOfExtensionsNamesThoseThatAreNeverText) {
  const Setting* setting = FindSetting(AllSettings(), "txbFileExtensions(1)");
  ASSERT_NE(setting, nullptr);
  for (const Language language : kLanguages) {
    const std::string tip = In(language, setting->toolTip) + " ";
    for (const std::string_view extension : ExtensionFilter::NeverText()) {
      EXPECT_THAT(tip, testing::HasSubstr(" " + std::string(extension) + " "));
    }
  }
}

TEST_F(DeliveredTextsTest, TextsOfTheFindBar) {
  for (const int number : {kFindText, kFindNextText, kFindPreviousText, kNotFoundText}) {
    EXPECT_NE(In(Language::kEnglish, number), "");
    EXPECT_NE(In(Language::kGerman, number), In(Language::kEnglish, number));
  }
}

TEST_F(DeliveredTextsTest, TextsWithARoleAreThere) {
  for (const Language language : kLanguages) {
    for (const int number : {1, 2, 14, 19, 20, 21, 22, 23, 310, 311, 312, 313}) {
      EXPECT_NE(In(language, number), "") << number;
    }
    EXPECT_EQ(In(language, kProgramTitleText), "Quillomat");
    EXPECT_EQ(In(language, kMakerAddressText), "https://quillomat.example/");
  }
}

TEST_F(DeliveredTextsTest, PanelExplainsItself) {
  EXPECT_EQ(In(Language::kEnglish, 201), kOnThisPage);
}

TEST_F(DeliveredTextsTest, CountCommandIsNeverCalledStop) {
  EXPECT_EQ(In(Language::kEnglish, 21), "Count word frequencies");
  EXPECT_NE(In(Language::kGerman, 21), "Stop");
  EXPECT_NE(In(Language::kGerman, 21), In(Language::kEnglish, 21));
}

TEST_F(DeliveredTextsTest, LanguageCommandNamesTheOtherLanguage) {
  EXPECT_EQ(In(Language::kEnglish, 123), "Deutsch");
  EXPECT_EQ(In(Language::kGerman, 123), "English");
}

TEST_F(DeliveredTextsTest, SignsStandBehindTheirNamesInBothLanguages) {
  for (int number = 203; number <= 213; ++number) {
    const std::string english = In(Language::kEnglish, number);
    const std::string sign = english.substr(english.rfind(' '));
    EXPECT_TRUE(In(Language::kGerman, number).ends_with(sign)) << number;
  }
}

}  // namespace
}  // namespace quillomat
