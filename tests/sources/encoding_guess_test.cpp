// The guess at the encoding of a text, and at its byte order.
#include "sources/encoding_guess.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>

#include "base/byte_source.h"
#include "sources/converted_source.h"
#include "sources/encoding_fixture.h"
#include "support/chunked_source.h"
#include "support/encoded_texts.h"

namespace quillomat {
namespace {

using namespace std::string_literals;

// Made by Python's codecs: "Każdego ranka rzeka cicho niesie wodę obok starego domu, a ludzie
// słuchają jej pieśni. Zażółć gęślą jaźń." and, in the others, what kRussianWords has, and the
// like.
constexpr std::string_view kPolishIso8859Part2 =
    "Ka\xBF"
    "dego ranka rzeka cicho niesie wod\xEA obok starego domu, a ludzie s\xB3uchaj\xB1 jej "
    "pie\xB6ni. Za\xBF\xF3\xB3\xE6 g\xEA\xB6l\xB1 ja\xBC\xF1.\n";
constexpr std::string_view kRussianWindows =
    "\xCA\xE0\xE6\xE4\xEE\xE5 \xF3\xF2\xF0\xEE \xF0\xE5\xEA\xE0 \xF2\xE8\xF5\xEE "
    "\xED\xE5\xF1\xB8\xF2 \xE2\xEE\xE4\xF3 \xEC\xE8\xEC\xEE \xE4\xEE\xEC\xE0.\n";
constexpr std::string_view kJapaneseShiftJis =
    "\x96\x88\x92\xA9\x81\x41\x90\xEC\x82\xCD\x8C\xC3\x82\xA2\x89\xC6\x82\xCC\x82\xBB\x82\xCE\x82"
    "\xF0\x97\xAC\x82\xEA\x82\xDC\x82\xB7\x81\x42\n";

constexpr std::string_view kUkrainianKoi8 =
    "\xBD\xC1\xCE\xCF\xCB \xA6 \xD3\xC1\xC4, \xA7\xD6\xC1\xCB \xC2\xA6\xD6\xC9\xD4\xD8 \xC4\xCF "
    "\xCC\xA6\xD3\xD5, \xA4 \xD7\xCF\xC4\xC1 \xCA \xD4\xC9\xC8\xC1 \xD2\xA6\xDE\xCB\xC1.\n";

class EncodingGuess : public Encodings {};

TEST_F(EncodingGuess, GuessKnowsRussianPolishAndJapanese) {
  const CountResult koi8 = CountFile(TimesOver(kRussianKoi8, 5), CharacterSet::kGuess);
  EXPECT_EQ(SourceSetOf(koi8), CharacterSet::kKoi8U) << "whose letters hold those of KOI8-R";
  EXPECT_EQ(koi8.store.At(1).Word, "воду");
  const CountResult windows = CountFile(TimesOver(kRussianWindows, 5), CharacterSet::kGuess);
  EXPECT_EQ(SourceSetOf(windows), CharacterSet::kWindows1251);
  EXPECT_EQ(windows.store.At(1).Word, "воду");
  EXPECT_EQ(SourceSetOf(CountFile(TimesOver(kPolishIso8859Part2, 5), CharacterSet::kGuess)),
            CharacterSet::kIso8859Part2);
  EXPECT_EQ(SourceSetOf(CountFile(TimesOver(kJapaneseShiftJis, 5), CharacterSet::kGuess)),
            CharacterSet::kShiftJis);
}

TEST_F(EncodingGuess, GuessIsMadeForEachFile) {
  static_cast<void>(folder.Write("a.txt", TimesOver(kRussianKoi8, 5)));
  static_cast<void>(folder.Write("b.txt", TimesOver(kRussianWindows, 5)));
  static_cast<void>(folder.Write("c.txt", "река"));
  request.encoding = CharacterSet::kGuess;
  const CountResult result = Run(TextOfFolder{folder.Path(), false, {}});
  EXPECT_EQ(WordsOf(result).find("река*11"), WordsOf(result).find("река")) << WordsOf(result);
  EXPECT_EQ(result.reports.at(2).convertedFrom, CharacterSet::kAsFound);
}

TEST_F(EncodingGuess, GuessLeavesUtf8AndWhatNobodyKnows) {
  EXPECT_EQ(CharacterSetOf("слово", CharacterSet::kGuess), CharacterSet::kAsFound);
  EXPECT_EQ(CharacterSetOf("plain words", CharacterSet::kGuess), CharacterSet::kAsFound);
  EXPECT_EQ(CharacterSetOf("", CharacterSet::kGuess), CharacterSet::kAsFound);
  EXPECT_EQ(CharacterSetOf("c\0a\0t\0s\0"s, CharacterSet::kGuess), CharacterSet::kUtf16);
  EXPECT_EQ(CharacterSetOf("\0\x01\x02\x03\0\0"s, CharacterSet::kGuess), CharacterSet::kAsFound);
}

TEST_F(EncodingGuess, GuessTakesForUtf8OnlyWhatNearlyIs) {
  // "l’été l’œuvre l’élève déjà" in Mac Roman, of which the library takes the first for UTF-8.
  const std::string mac =
      TimesOver("l\xD5\x8Et\x8E l\xD5\xCFuvre l\xD5\x8El\x8Fve d\x8Ej\x88\n", 5);
  EXPECT_NE(CharacterSetOf(mac, CharacterSet::kGuess), CharacterSet::kUtf8);
  for (const std::string_view broken : {"L'été, les élèves"
                                        "\xE9",
                                        "über die Brücke geht er h\xC3"}) {
    EXPECT_EQ(CharacterSetOf(broken, CharacterSet::kGuess), CharacterSet::kUtf8) << broken;
  }
}

TEST_F(EncodingGuess, GuessLeavesLinesOfSeveralKindsToThemselves) {
  const std::string text = TimesOver("Über die Brücke geht er früh.\n", 20) +
                           TimesOver("L'\xE9t\xE9, Le\xEFla \xE0 la for\xEAt.\n", 2);
  EXPECT_EQ(CharacterSetOf(text, CharacterSet::kGuess), CharacterSet::kAsFound);
}

TEST_F(EncodingGuess, GuessKnowsTextsOfDosAndTheMacintosh) {
  // "Der Bär überquert die Brücke. ..." and "L'été, les élèves préfèrent la forêt ...".
  EXPECT_EQ(CharacterSetOf(TimesOver("Der B\x84r \x81"
                                     "berquert die Br\x81"
                                     "cke. \x9A"
                                     "ber den D\x84"
                                     "chern flie\xE1t der sch\x94ne Flu\xE1, gr\x94\xE1"
                                     "er als fr\x81her. ",
                                     3),
                           CharacterSet::kGuess),
            CharacterSet::kIbm850);
  EXPECT_EQ(CharacterSetOf(TimesOver("Der B\x8Ar \x9F"
                                     "berquert die Br\x9F"
                                     "cke. \x86"
                                     "ber den D\x8A"
                                     "chern flie\xA7t der sch\x9Ane Flu\xA7, gr\x9A\xA7"
                                     "er als fr\x9Fher. ",
                                     3),
                           CharacterSet::kGuess),
            CharacterSet::kMacRoman);
  EXPECT_EQ(CharacterSetOf(TimesOver("L'\x82t\x82, les \x82l\x8Aves pr\x82"
                                     "f\x8Arent la for\x88t pr\x8As du ch\x83teau; \x87"
                                     "a me pla\x8Ct d\x82j\x85, o\x97 \x88tes-vous? ",
                                     3),
                           CharacterSet::kGuess),
            CharacterSet::kIbm850);
  EXPECT_EQ(CharacterSetOf(TimesOver("L'\x8Et\x8E, les \x8El\x8Fves pr\x8E"
                                     "f\x8Frent la for\x90t pr\x8Fs du ch\x89teau; \x8D"
                                     "a me pla\x94t d\x8Ej\x88, o\x9D \x90tes-vous? ",
                                     3),
                           CharacterSet::kGuess),
            CharacterSet::kMacRoman);
}

TEST_F(EncodingGuess, GuessKnowsSetsByWhatStandsWithinWords) {
  // "Najstarszy był silny, średni był mądry, a najmłodszy lubił śpiewać. Powiedział im: idźcie w
  // świat i przynieście mi wodę życia."
  EXPECT_EQ(CharacterSetOf("Najstarszy by\xB3 silny, \xB6redni by\xB3 m\xB1"
                           "dry, a najm\xB3odszy lubi\xB3 \xB6piewa\xE6. Powiedzia\xB3 im: id\xBC"
                           "cie w \xB6wiat i przynie\xB6"
                           "cie mi wod\xEA \xBFycia.\n",
                           CharacterSet::kGuess),
            CharacterSet::kIso8859Part2);
  // "Večer se starý rybář vrátil domů a vyprávěl dětem o dalekém ostrově. Příliš žluťoučký kůň."
  EXPECT_EQ(CharacterSetOf("Ve\xE8"
                           "er se star\xFD ryb\xE1\xF8 vr\xE1til dom\xF9 a vypr\xE1v\xECl d\xECtem "
                           "o dalek\xE9m ostrov\xEC. P\xF8\xEDli\x9A \x9Elu\x9Dou\xE8k\xFD "
                           "k\xF9\xF2.\n",
                           CharacterSet::kGuess),
            CharacterSet::kWindows1250);
  // "Ma sœur a préparé un bœuf aux œufs. Le cœur bat."
  EXPECT_EQ(CharacterSetOf("Ma s\xBDur a pr\xE9par\xE9 un b\xBDuf aux \xBDufs. Le c\xBDur bat.\n",
                           CharacterSet::kGuess),
            CharacterSet::kIso8859Part15);
  // "Lapsed küsisid, mida ta oli näinud. Öösel sadas vihma. Šokolaadi ja žürii kohta ei teadnud
  // keegi midagi, ka maaži kohta."
  EXPECT_EQ(CharacterSetOf("Lapsed k\xFCsisid, mida ta oli n\xE4inud. \xD6\xF6sel sadas vihma. "
                           "\x8Aokolaadi ja \x9E\xFCrii kohta ei teadnud keegi midagi, ka "
                           "maa\x9Ei kohta.\n",
                           CharacterSet::kGuess),
            CharacterSet::kWindows1252);
}

TEST_F(EncodingGuess, GuessTakesAccentsForNoChinese) {
  // "Le vieux pêcheur raconta aux enfants l'histoire de l'île lointaine. Le cœur, l'œuvre."
  EXPECT_EQ(CharacterSetOf(TimesOver("Le vieux p\xEA"
                                     "cheur raconta aux enfants l'histoire de l'\xEEle "
                                     "lointaine. Le c\xBDur, l'\xBDuvre.\n",
                                     4),
                           CharacterSet::kGuess),
            CharacterSet::kIso8859Part15);
  // "iPhone手机" and "CPU和GPU" have Latin letters beside Chinese ones, too.
  const std::string chinese =
      "iPhone\xCA\xD6\xBB\xFA\xBA\xCD"
      "CPU\xBA\xCDGPU\xB5\xC4\xBC\xDB\xB8\xF1\xBA\xDC\xB8\xDF\xA1\xA3\xCE\xD2\xCF\xB2\xBB\xB6"
      "\xCA\xD6\xBB\xFA\xA1\xA3\n";
  EXPECT_EQ(CharacterSetOf(TimesOver(chinese, 4), CharacterSet::kGuess), CharacterSet::kGb18030);
}

TEST_F(EncodingGuess, GuessTakesTypographicSignsForWhatTheyAre) {
  // Quotes, dashes, apostrophes, dots and the sign of a trade mark of Windows-1252.
  const std::string text = TimesOver(
      "\x93It\x92s here\x94\x97he said\x97\x93or isn\x92t it\x85\x94 The Brand\x99 is na\xEFve\n",
      5);
  EXPECT_EQ(CharacterSetOf(text, CharacterSet::kGuess), CharacterSet::kWindows1252);
}

TEST_F(EncodingGuess, GuessTakesSignsBetweenWordsForNoLetters) {
  for (const std::string_view text :
       {"one\x95two\x95three\x95"
        "four\x95"
        "five\x95six\n",
        "Foo\x99"
        "bar\nis\x99not\n",
        "home\x9Bnews\x9Bsport\n", "word\x86note word\x86note\n", "give\xA3two for\xA3six\n",
        "a\xBB"
        "b see\xA7two\n"}) {
    const CharacterSet guess = CharacterSetOf(TimesOver(text, 4), CharacterSet::kGuess);
    EXPECT_NE(guess, CharacterSet::kIbm850) << text;
    EXPECT_NE(guess, CharacterSet::kMacRoman) << text;
  }
}

// The library knows too little then, and names sets that hardly a text is in.
TEST_F(EncodingGuess, GuessTakesFewLettersForWesternOnes) {
  constexpr std::pair<std::string_view, std::string_view> kWords[] = {{"fa\xE7"
                                                                       "ade",
                                                                       "fa\u00E7ade"},
                                                                      {"se\xF1or", "se\u00F1or"},
                                                                      {"na\xEFve", "na\u00EFve"},
                                                                      {"\xFC"
                                                                       "ber",
                                                                       "\u00FCber"},
                                                                      {"Bront\xEB", "bront\u00EB"}};
  for (const auto& [bytes, word] : kWords) {
    const std::string text =
        "In the year of the great storm the keeper of the lighthouse wrote " + std::string(bytes) +
        " to his sister that the nets were empty and that the boats had not come home.\n";
    const std::string words = WordsOf(CountFile(text, CharacterSet::kGuess));
    EXPECT_NE(words.find(word), std::string::npos) << words;
  }
}

TEST_F(EncodingGuess, GuessKeepsLinesOfUtf8ThatAreDamaged) {
  const std::string good = TimesOver("Über die Brücke geht er früh.\n", 20);
  EXPECT_EQ(CharacterSetOf(good + "caf\xC3\xA9 noir \xE9\n", CharacterSet::kGuess),
            CharacterSet::kUtf8);
  std::string cut =
      TimesOver("Über die Brücke \xE9 geht er früh für uns.\n", 3000).substr(0, kGuessBytes);
  cut.replace(cut.size() - 12, 12, "\nein Meer gr\xC3");
  EXPECT_EQ(CharacterSetOf(cut, CharacterSet::kGuess), CharacterSet::kUtf8);
}

TEST_F(EncodingGuess, MarkOfUtf8SaysMoreThanAGuess) {
  const std::string added = TimesOver(
      "Der B\x84r \x81"
      "berquert die Br\x81"
      "cke. \x9A"
      "ber D\x84"
      "cher. ",
      3);
  EXPECT_EQ(CharacterSetOf(added, CharacterSet::kGuess), CharacterSet::kIbm850);
  EXPECT_EQ(CharacterSetOf("\xEF\xBB\xBF"
                           "Er geht früh.\n" +
                               added,
                           CharacterSet::kGuess),
            CharacterSet::kAsFound);
}

TEST_F(EncodingGuess, GuessIsTheLargerOfSetsWithTheSameLetters) {
  // Of a head in ISO 8859-1 the rest may have what Windows-1252 has besides.
  const std::string head =
      TimesOver("L'\xE9t\xE9, les \xE9l\xE8ves vont \xE0 la for\xEAt.\n", 2500);
  ASSERT_GT(head.size(), kGuessBytes);
  const CountResult result = CountFile(head + "une \x9Cuvre\n", CharacterSet::kGuess);
  EXPECT_EQ(SourceSetOf(result), CharacterSet::kWindows1252);
  EXPECT_NE(WordsOf(result).find("œuvre"), std::string::npos);
}

TEST_F(EncodingGuess, GuessKnowsUkrainian) {
  const CountResult result = CountFile(TimesOver(kUkrainianKoi8, 5), CharacterSet::kGuess);
  EXPECT_EQ(WordsOf(result),
            "біжить*5 вода*5 до*5 й*5 лісу*5 річка*5 сад*5 тиха*5 є*5 і*5 їжак*5 ґанок*5");
}

TEST_F(EncodingGuess, GuessSeesWhichByteOfUtf16ComesFirst) {
  for (const std::u16string_view text : {u"Тихая река", u"über die Brücke", u"静かな川\n"}) {
    EXPECT_EQ(CharacterSetOf(InUtf16(text, false), CharacterSet::kGuess), CharacterSet::kUtf16);
    EXPECT_EQ(CharacterSetOf(InUtf16(text, true), CharacterSet::kGuess),
              CharacterSet::kUtf16HighByteFirst);
    EXPECT_EQ(CharacterSetOf(InUtf16(text, true), CharacterSet::kUtf16),
              CharacterSet::kUtf16HighByteFirst);
    EXPECT_EQ(CharacterSetOf(InUtf16(text, false), CharacterSet::kUtf16), CharacterSet::kUtf16);
  }
  EXPECT_EQ(CountFile("\x20\0\x00\xD8\x20\0"s, CharacterSet::kGuess).refusal, Refusal::kNotText)
      << "a lone surrogate";
  const CountResult result = CountFile(InUtf16(u"Тихая река\n", true), CharacterSet::kUtf16);
  EXPECT_EQ(WordsOf(result), "река тихая");
  EXPECT_EQ(result.reports.at(0).lines->lineFeeds, 1);
}

TEST_F(EncodingGuess, ByteOrderOfChineseAndJapaneseIsSeen) {
  // Turned round, U+3000 and U+4E00 are digits and letters of ASCII.
  const std::u16string paragraphs =
      u"　　一个人走在路上，今天天气很好。\n　　他们一起去学校学习中文。\n";
  std::u16string many;
  for (int i = 0; i < 30; ++i) many += paragraphs;
  for (const std::u16string_view text :
       {std::u16string_view(many), std::u16string_view(u"一个人走一条路，一天又一天。"),
        std::u16string_view(u"　今日は天気がいい。\r\n　明日は雨が降る。\r\n"),
        std::u16string_view(u"一个人开车去一个大城市")}) {
    EXPECT_EQ(CharacterSetOf(InUtf16(text, false), CharacterSet::kUtf16), CharacterSet::kUtf16);
    EXPECT_EQ(CharacterSetOf(InUtf16(text, true), CharacterSet::kUtf16),
              CharacterSet::kUtf16HighByteFirst);
    if (text.find(u'。') == text.npos) continue;  // nothing that all texts have
    EXPECT_EQ(CharacterSetOf(InUtf16(text, false), CharacterSet::kGuess), CharacterSet::kUtf16);
    EXPECT_EQ(CharacterSetOf(InUtf16(text, true), CharacterSet::kGuess),
              CharacterSet::kUtf16HighByteFirst);
  }
}

TEST_F(EncodingGuess, LineEndsTellTheByteOrderOfFewCharacters) {
  // With fewer high bytes the wrong way round.
  const std::u16string_view text = u"無法取得顯示符號所需之動態符號資訊。\n";
  for (const CharacterSet choice : {CharacterSet::kUtf16, CharacterSet::kGuess}) {
    EXPECT_EQ(CharacterSetOf(InUtf16(text, false), choice), CharacterSet::kUtf16);
    EXPECT_EQ(CharacterSetOf(InUtf16(text, true), choice), CharacterSet::kUtf16HighByteFirst);
  }
  // Turned round, U+0130 is U+3001, a sign of Chinese texts.
  EXPECT_EQ(CharacterSetOf(InUtf16(u"İPİŞİRİR", true), CharacterSet::kUtf16),
            CharacterSet::kUtf16HighByteFirst);
}

TEST_F(EncodingGuess, ByteOrderOfAsciiIsSeen) {
  for (const std::u16string_view text : {u"NO 0_0", u"0", u"N\n", u"NN00\r\n", u"cat\x1B dog"}) {
    EXPECT_EQ(CharacterSetOf(InUtf16(text, false), CharacterSet::kUtf16), CharacterSet::kUtf16);
    if (text == u"0") continue;  // nobody can know
    EXPECT_EQ(CharacterSetOf(InUtf16(text, true), CharacterSet::kUtf16),
              CharacterSet::kUtf16HighByteFirst);
  }
}

TEST_F(EncodingGuess, ChosenByteOrderIsTakenAtItsWord) {
  for (const bool highByteFirst : {false, true}) {
    const CharacterSet turned =
        highByteFirst ? CharacterSet::kUtf16LowByteFirst : CharacterSet::kUtf16HighByteFirst;
    const std::string bytes = InUtf16(u"一个人 cat", highByteFirst);
    EXPECT_EQ(CharacterSetOf(bytes, turned), turned);
    const CharacterSet chosen =
        highByteFirst ? CharacterSet::kUtf16HighByteFirst : CharacterSet::kUtf16LowByteFirst;
    const CountResult result = CountFile(bytes + InUtf16(u"\n", highByteFirst), chosen);
    EXPECT_EQ(SourceSetOf(result), chosen);
    EXPECT_EQ(result.store.At(1).Word, "cat");
    EXPECT_EQ(result.reports.at(0).lines->lineFeeds, 1);
  }
}

TEST_F(EncodingGuess, GuessIsPutOffBehindAHeadOfAscii) {
  const std::string ascii = TimesOver("plain words ", 7000);
  ASSERT_GT(ascii.size(), kGuessBytes);
  const std::string text = ascii + TimesOver(kRussianKoi8, 50);
  const CountResult one = CountFile(text, CharacterSet::kGuess);
  EXPECT_EQ(SourceSetOf(one), CharacterSet::kKoi8U);
  EXPECT_EQ(WordsOf(one).find("plain*7000"), WordsOf(one).find("plain")) << WordsOf(one);
  EXPECT_EQ(one.uncounted, Uncounted());
  for (std::size_t chunk : {1000U, 65'536U, 100'000U}) {
    ChunkedSource stream(text, chunk);
    EXPECT_EQ(WordsOf(Run(TextOfStream{&stream, "pipe"})), WordsOf(one)) << chunk;
  }
  EXPECT_EQ(SourceSetOf(CountFile(ascii, CharacterSet::kGuess)), CharacterSet::kAsFound);
  EXPECT_EQ(SourceSetOf(CountFile(ascii + "река", CharacterSet::kGuess)), CharacterSet::kAsFound);
}

TEST_F(EncodingGuess, WhatLooksLikeAMarkOfUtf16BehindAHeadOfAsciiIsNone) {
  for (const std::string_view mark : {"\xFF\xFE", "\xFE\xFF"}) {
    const std::string text =
        TimesOver("plain words ", 7000).append(mark) + TimesOver(" emu fox\n", 8000);
    const std::string_view letters = mark == "\xFF\xFE" ? " ÿþ" : " þÿ";
    EXPECT_EQ(LateGuessOfWhole(text), CharacterSet::kAsFound);
    EXPECT_EQ(WordsOf(CountFile(text, CharacterSet::kGuess)),
              "emu*8000 fox*8000 plain*7000 words*7000" + std::string(letters));
  }
}

TEST_F(EncodingGuess, GuessIsPutOffInFoldersOnThreadsAsWell) {
  const std::string text = TimesOver("plain words ", 7000) + TimesOver(kRussianKoi8, 50);
  for (int i = 0; i < 40; ++i) {
    static_cast<void>(folder.Write("a" + std::to_string(i) + ".txt", text));
  }
  request.encoding = CharacterSet::kGuess;
  const CountResult alone = Run(TextOfFolder{folder.Path(), false, {}});
  request.threads = 3;
  const CountResult together = Run(TextOfFolder{folder.Path(), false, {}});
  EXPECT_EQ(WordsOf(together), WordsOf(alone));
  EXPECT_NE(WordsOf(alone).find("река*2000"), std::string::npos) << WordsOf(alone);
  for (const FileReport& report : together.reports) {
    EXPECT_EQ(report.convertedFrom, CharacterSet::kKoi8U);
  }
}

TEST_F(EncodingGuess, GuessIsPutOffInAWholeTextAsInFiles) {
  const std::string ascii = TimesOver("plain words ", 7000);
  const auto guessed = [](const std::string& text) {
    TextSource source(text);
    Uncounted uncounted;
    GuessedSets guesses;
    std::string whole = WholeText(source, CharacterSet::kGuess, uncounted, guesses);
    EXPECT_EQ(uncounted, Uncounted());
    return whole;
  };
  EXPECT_TRUE(guessed(ascii + TimesOver(kRussianKoi8, 5)).starts_with(ascii + "Каждое утро"));
  EXPECT_EQ(guessed(ascii + "река"), ascii + "река");
  EXPECT_EQ(guessed(ascii), ascii);
}

TEST_F(EncodingGuess, HeadThatIsCutWithinACharacterIsUtf8) {
  const std::string cut = TimesOver("川", 30'000).substr(0, kGuessBytes);
  ASSERT_NE(kGuessBytes % 3, 0U);
  EXPECT_TRUE(LooksLikeUtf8(cut));
  EXPECT_EQ(CharacterSetOf(cut, CharacterSet::kGuess), CharacterSet::kAsFound);
  EXPECT_FALSE(LooksLikeUtf8("река\xD1!"));
  EXPECT_FALSE(LooksLikeUtf8("река\xD1")) << "nothing is behind it";
  EXPECT_FALSE(LooksLikeUtf8("c\0a\0"s)) << "UTF-16";
}

}  // namespace
}  // namespace quillomat
