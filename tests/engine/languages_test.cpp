// Small texts in many languages and scripts, and the words that they consist of.
#include <ostream>
#include <string>

#include "support/engine_fixture.h"

namespace quillomat {
namespace {

struct LanguageSample {
  const char* language;
  const char* text;
  /// As of EngineFixture::Words.
  const char* words;
};

std::ostream& operator<<(std::ostream& out, const LanguageSample& sample) {
  return out << sample.language;
}

class Languages : public EngineFixture, public testing::WithParamInterface<LanguageSample> {
 protected:
  Languages() { UseAllLetters(); }
};

TEST_P(Languages, TextConsistsOfItsWords) {
  EXPECT_EQ(Count(GetParam().text), GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Samples, Languages,
    testing::Values(
        LanguageSample{"Polish", "Żółty żuk idzie, żółta łąka śpi. Żuk!",
                       "idzie łąka śpi żółta żółty żuk*2"},
        LanguageSample{"Czech", "Příliš žluťoučký kůň; KŮŇ běží – a kun též.",
                       "a běží kůň*3 příliš též žluťoučký"},
        LanguageSample{"Turkish", "Işık İzmir’de; ışık, izmir'de DIŞARI",
                       "de*2 dişari işık*2 izmir*2"},
        LanguageSample{"Vietnamese", "Tiếng Việt: tiếng nước tôi", "nước tiếng*2 tôi việt"},
        LanguageSample{"Icelandic", "Þetta er gott. Það ER gott, Ævar!",
                       "ævar er*2 gott*2 það þetta"},
        LanguageSample{"Russian", "Ёж и ёж: ещё один ЕЖ, но не ёжик.",
                       "еж ещё и не но один ёж*2 ёжик"},
        LanguageSample{"Ukrainian", "Їжак їсть м’ясо; м'ясо їЖАК.", "м*2 ясо*2 їжак*2 їсть"},
        LanguageSample{"Greek", "Ο λόγος, ο ΛΟΓΟΣ και τα λόγια· ὁ λόγος.",
                       "και λόγια λόγος*3 ο*3 τα"},
        LanguageSample{"Armenian", "Բարեւ, աշխարհ։ ԲԱՐԵՒ", "աշխարհ բարեւ*2"},
        LanguageSample{"Georgian", "გამარჯობა მსოფლიო, მსოფლიო!", "გამარჯობა მსოფლიო*2"},
        LanguageSample{"Hebrew", "שלום עולם, שלום לכולם", "לכולם עולם שלום*2"},
        LanguageSample{"Arabic", "السلام عليكم، عليكم السلام", "السلام*2 عليكم*2"},
        LanguageSample{"Hindi", "हिन्दी भाषा, हिन्दी में।", "भाषा में हिन्दी*2"},
        LanguageSample{"Tamil", "தமிழ் மொழி; தமிழ்", "தமிழ்*2 மொழி"},
        LanguageSample{"Korean", "한국어 단어와 한국어 문장.", "단어와 문장 한국어*2"},
        LanguageSample{"Amharic", "ሰላም ለዓለም፤ ሰላም", "ለዓለም ሰላም*2"},
        LanguageSample{"Chinese", "我们数词，我们数词。", "我们数词*2"},
        LanguageSample{"Thai", "ภาษาไทย ภาษาไทย", "ภาษาไทย*2"}),
    [](const auto& sample) { return std::string(sample.param.language); });

}  // namespace
}  // namespace quillomat
