#include "app/table/result_table.h"

#include <new>
#include <string>

#include "support/program_fixture.h"

namespace quillomat {
namespace {

class ResultTableTest : public ProgramFixture {
 protected:
  ResultTableTest() {
    table_.Changing.Connect([this] { seen_ += '<'; });
    table_.Changed.Connect([this] { seen_ += '>'; });
  }

  static std::variant<Matcher, ExpressionFault> Read(std::string_view expression) {
    if (expression == "(") return ExpressionFault{"no end"};
    if (expression == "too large") return [](std::string_view) -> bool { throw std::bad_alloc(); };
    return [wanted = std::string(expression)](std::string_view text) { return text == wanted; };
  }
  std::string Shown() {
    const WordRows* rows = table_.Rows();
    if (rows == nullptr) return "none";
    std::string words;
    for (std::size_t row = 0; row < rows->Size(); ++row) {
      words += std::string(rows->RowAt(row).word) + ' ';
    }
    return words;
  }

  ResultTable table_{program.Words(), Read};
  /// What happened: "<" before a change, ">" behind it.
  std::string seen_;
};

TEST_F(ResultTableTest, ComesWithACountAndGoesBeforeItsWordsDo) {
  EXPECT_EQ(Shown(), "none");
  CountClipboard("dog cat dog");
  EXPECT_EQ(Shown(), "dog cat ");
  EXPECT_EQ(seen_, "<>");
  table_.Changing.Connect([this] { EXPECT_GT(Words().store.NumDifferentWords(), 0); });
  CountClipboard("ox");
  EXPECT_EQ(Shown(), "ox ");
  program.Initialize();
  EXPECT_EQ(Shown(), "none");
}

TEST_F(ResultTableTest, WordsAreThereBeforeTheListIsMadeWhichMayAskTheUser) {
  Main().txbFile[1].SetText(folder.Write("list.txt", "old"));
  desktop.AnswerText(folder / "list.txt");
  std::size_t asked = 1;
  table_.Changed.Connect([&] { asked = desktop.InputBoxes().size(); });
  CountClipboard("cat dog");
  EXPECT_EQ(asked, 0U);
  EXPECT_EQ(desktop.InputBoxes().size(), 1U);
}

TEST_F(ResultTableTest, OrderAndFilterStayForTheNextCount) {
  table_.SetOrder({WordColumn::kLength, true});
  table_.SetFilter({FilterKind::kEndsWith, "t"});
  CountClipboard("cat dog carrot ox");
  EXPECT_EQ(Shown(), "carrot cat ");
  CountClipboard("rat parrot cow");
  EXPECT_EQ(Shown(), "parrot rat ");
  table_.SetFilter({});
  EXPECT_EQ(Shown(), "parrot cow rat ");
}

TEST_F(ResultTableTest, BlanksAndLineEndsAroundAFilterAreNoPartOfIt) {
  CountClipboard("cat dog");
  for (const char* typed : {" cat", "cat\n", "\r\n\tcat \u2029", "\u00A0cat\u3000"}) {
    table_.SetFilter({FilterKind::kEquals, typed});
    EXPECT_EQ(table_.FilterInForce().text, "cat");
    EXPECT_EQ(Shown(), "cat ") << typed;
  }
  table_.SetFilter({FilterKind::kContains, " \n"});
  EXPECT_EQ(Shown(), "cat dog ");
  table_.SetFilter({FilterKind::kExpression, "cat "});
  EXPECT_EQ(table_.FilterInForce().text, "cat ");
}

TEST_F(ResultTableTest, ExpressionThatIsNotUnderstoodChangesNothing) {
  CountClipboard("cat dog");
  table_.SetFilter({FilterKind::kExpression, "cat"});
  EXPECT_EQ(Shown(), "cat ");
  table_.SetFilter({FilterKind::kExpression, "("});
  EXPECT_EQ(table_.Fault(), "no end");
  EXPECT_EQ(Shown(), "cat ");
  table_.SetFilter({FilterKind::kExpression, ""});
  EXPECT_EQ(table_.Fault(), "");
  EXPECT_EQ(Shown(), "cat dog ");
}

TEST_F(ResultTableTest, ChangeThatFailsForWantOfMemoryIsEndedAllTheSame) {
  CountClipboard("cat dog");
  ASSERT_EQ(Shown(), "cat dog ");
  seen_.clear();
  EXPECT_THROW(table_.SetFilter({FilterKind::kExpression, "too large"}), std::bad_alloc);
  EXPECT_EQ(seen_, "<>");
  // Whoever looks is told once, and finds no words from then on.
  EXPECT_THROW(static_cast<void>(table_.Rows()), std::bad_alloc);
  EXPECT_EQ(Shown(), "none");
  table_.SetFilter({});
  CountClipboard("ox");
  EXPECT_EQ(Shown(), "ox ");
}

TEST_F(ResultTableTest, SameOrderAgainIsNoChange) {
  CountClipboard("cat dog");
  seen_.clear();
  table_.SetOrder(table_.Order());
  table_.SetFilter(table_.Filter());
  EXPECT_EQ(seen_, "");
}

TEST_F(ResultTableTest, IsOfACountAndNotOfAWordsFile) {
  CountClipboard("cat dog");
  Panel().txbWordsFile[0].SetText(folder.Write("words.txt", "dog\n"));
  Panel().txbWordsFile[0].LostFocus.Fire();
  EXPECT_EQ(Shown(), "none");
}

TEST_F(ResultTableTest, CountWithoutAWordIsAnEmptyTable) {
  CountClipboard("1 2 3");
  EXPECT_EQ(Shown(), "");
}

}  // namespace
}  // namespace quillomat
