// Counts of texts in an encoding that was chosen or guessed.
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "base/byte_source.h"
#include "sources/converted_source.h"
#include "sources/counter_fixture.h"
#include "sources/encoding_guess.h"
#include "support/chunked_source.h"
#include "support/encoded_texts.h"

namespace quillomat {
namespace {

using namespace std::string_literals;

std::string TimesOver(std::string_view text, int times) {
  std::string repeated;
  for (int i = 0; i < times; ++i) repeated += text;
  return repeated;
}

// Made by Python's codecs: "Każdego ranka rzeka cicho niesie wodę obok starego domu, a ludzie
// słuchają jej pieśni. Zażółć gęślą jaźń." and, in the others, what kRussianWords has, and the
// like.
constexpr std::string_view kPolishIso8859Part2 =
    "Ka\xBF"
    "dego ranka rzeka cicho niesie wod\xEA obok starego domu, a ludzie s\xB3uchaj\xB1 jej "
    "pie\xB6ni. Za\xBF\xF3\xB3\xE6 g\xEA\xB6l\xB1 ja\xBC\xF1.\n";
constexpr std::string_view kRussianKoi8 =
    "\xEB\xC1\xD6\xC4\xCF\xC5 \xD5\xD4\xD2\xCF \xD2\xC5\xCB\xC1 \xD4\xC9\xC8\xCF "
    "\xCE\xC5\xD3\xA3\xD4 \xD7\xCF\xC4\xD5 \xCD\xC9\xCD\xCF \xC4\xCF\xCD\xC1.\n";
constexpr std::string_view kRussianWindows =
    "\xCA\xE0\xE6\xE4\xEE\xE5 \xF3\xF2\xF0\xEE \xF0\xE5\xEA\xE0 \xF2\xE8\xF5\xEE "
    "\xED\xE5\xF1\xB8\xF2 \xE2\xEE\xE4\xF3 \xEC\xE8\xEC\xEE \xE4\xEE\xEC\xE0.\n";
constexpr std::string_view kRussianWords = "воду дома каждое мимо несёт река тихо утро";
constexpr std::string_view kJapaneseShiftJis =
    "\x96\x88\x92\xA9\x81\x41\x90\xEC\x82\xCD\x8C\xC3\x82\xA2\x89\xC6\x82\xCC\x82\xBB\x82\xCE\x82"
    "\xF0\x97\xAC\x82\xEA\x82\xDC\x82\xB7\x81\x42\n";

constexpr std::string_view kUkrainianKoi8 =
    "\xBD\xC1\xCE\xCF\xCB \xA6 \xD3\xC1\xC4, \xA7\xD6\xC1\xCB \xC2\xA6\xD6\xC9\xD4\xD8 \xC4\xCF "
    "\xCC\xA6\xD3\xD5, \xA4 \xD7\xCF\xC4\xC1 \xCA \xD4\xC9\xC8\xC1 \xD2\xA6\xDE\xCB\xC1.\n";

class Encodings : public CounterFixture {
 protected:
  Encodings() {
    request.scan.letters = LetterRule::kAll;
    request.keepReports = true;
  }

  CountResult CountFile(std::string_view contents, CharacterSet encoding) {
    request.encoding = encoding;
    return Run(TextOfFile{folder.Write("a.txt", contents)});
  }
  static CharacterSet SourceSetOf(const CountResult& result) {
    return result.reports.at(0).convertedFrom;
  }
};

TEST_F(Encodings, WordsAreThoseOfTheTextInUtf8) {
  for (const EncodedText& encoded : kEncodedTexts) {
    if (IsMissingHere(encoded.set)) continue;
    const CountResult expected = CountFile(encoded.text, CharacterSet::kAsFound);
    const CountResult result = CountFile(encoded.bytes, encoded.set);
    EXPECT_EQ(WordsOf(result), WordsOf(expected)) << NameOf(encoded.set);
    EXPECT_EQ(SourceSetOf(result), encoded.set);
    EXPECT_EQ(result.reports[0].bytesRead, static_cast<std::int64_t>(encoded.bytes.size()));
    EXPECT_EQ(result.uncounted, Uncounted()) << NameOf(encoded.set);
  }
}

TEST_F(Encodings, SourceGivesTheSameHoweverItIsRead) {
  for (const EncodedText& encoded : kEncodedTexts) {
    if (IsMissingHere(encoded.set)) continue;
    for (std::size_t chunk = 1; chunk <= 7; ++chunk) {
      ChunkedSource bytes(std::string(encoded.bytes), chunk);
      std::int64_t bytesNotDecoded = 0;
      ConvertedSource converted(bytes, encoded.set, bytesNotDecoded);
      std::string text;
      std::string buffer(8 - chunk, '\0');
      while (const std::size_t size = converted.Read(buffer)) text.append(buffer, 0, size);
      EXPECT_EQ(text, encoded.text) << NameOf(encoded.set) << " in chunks of " << chunk;
      EXPECT_EQ(bytesNotDecoded, 0);
    }
  }
}

TEST_F(Encodings, AsFoundJudgesEachLine) {
  const CountResult result = CountFile("caf\xE9\nth\xC3\xA9\n", CharacterSet::kAsFound);
  EXPECT_EQ(WordsOf(result), "café thé");
  EXPECT_EQ(result.uncounted, (Uncounted{0, 1, 0}));
  EXPECT_EQ(SourceSetOf(result), CharacterSet::kAsFound);
}

TEST_F(Encodings, Utf16WithoutAMarkIsATextIfChosen) {
  const std::string bytes = "c\0a\0t\0\n\0\x34\x04\x30\x04"s;
  EXPECT_EQ(CountFile(bytes, CharacterSet::kAsFound).refusal, Refusal::kNotText);
  EXPECT_EQ(CountFile(bytes, CharacterSet::kUtf8).refusal, Refusal::kNotText);
  const CountResult result = CountFile(bytes, CharacterSet::kUtf16);
  EXPECT_EQ(WordsOf(result), "cat да");
  EXPECT_EQ(result.reports[0].lineEnds, LineEndingType::kUnix);
}

TEST_F(Encodings, WhatIsNoTextWhenConvertedIsRefused) {
  EXPECT_EQ(CountFile("cat \x01 dog", CharacterSet::kWindows1252).refusal, Refusal::kNotText);
  EXPECT_EQ(CountFile("c\0\x01\0"s, CharacterSet::kUtf16).refusal, Refusal::kNotText);
}

TEST_F(Encodings, MarkSaysMoreThanTheChoice) {
  const CountResult little = CountFile(
      "\xFF\xFE"
      "c\0a\0t\0"s,
      CharacterSet::kKoi8R);
  EXPECT_EQ(WordsOf(little), "cat");
  EXPECT_EQ(SourceSetOf(little), CharacterSet::kUtf16);
  EXPECT_EQ(WordsOf(CountFile("\xFE\xFF\0c\0a\0t"s, CharacterSet::kGuess)), "cat");
  const CountResult utf8 = CountFile(
      "\xEF\xBB\xBF"
      "th\xC3\xA9",
      CharacterSet::kKoi8R);
  EXPECT_EQ(WordsOf(utf8), "thé");
  EXPECT_EQ(SourceSetOf(utf8), CharacterSet::kUtf8);
}

TEST_F(Encodings, BytesThatAreNoCharacterSeparateWordsAndAreCounted) {
  CountResult result = CountFile(
      "cat\x81"
      "dog\x90\x8D\n",
      CharacterSet::kWindows1252);
  EXPECT_EQ(WordsOf(result), "cat dog");
  EXPECT_EQ(result.uncounted, (Uncounted{0, 0, 3}));
  EXPECT_EQ(result.reports.at(0).uncounted.bytesNotDecoded, 3);
  result = CountFile("cat\n\x82\xC6\x82", CharacterSet::kShiftJis);
  EXPECT_EQ(WordsOf(result), "cat と");
  EXPECT_EQ(result.uncounted.bytesNotDecoded, 1);
  result = CountFile(
      "\xFF\xFE"
      "c\0\x3D\xD8h\0e\0"s,
      CharacterSet::kAsFound);
  EXPECT_EQ(WordsOf(result), "c he");
  EXPECT_EQ(result.uncounted.bytesNotDecoded, 2) << "of UTF-16 also as it is found";
}

TEST_F(Encodings, StreamsAreConverted) {
  ChunkedSource stream(TimesOver(kRussianKoi8, 3), 5);
  request.encoding = CharacterSet::kKoi8R;
  const CountResult result = Run(TextOfStream{&stream, "pipe"});
  EXPECT_EQ(result.store.At(1).Word, "воду");
  EXPECT_EQ(result.store.At(1).Count, 3);
  EXPECT_EQ(result.reports.at(0).convertedFrom, CharacterSet::kKoi8R);
}

TEST_F(Encodings, FilesOfAFolderAreConvertedOnThreads) {
  for (int i = 0; i < 200; ++i) {
    static_cast<void>(
        folder.Write("a" + std::to_string(i) + ".txt", TimesOver("caf\xE1 \xE1\n", 400) + "\xFF"));
  }
  static_cast<void>(folder.Write("b.txt",
                                 "\xFF\xFE"
                                 "c\0a\0t\0\x3D\xD8"s));
  request.encoding = CharacterSet::kWindows1253;  // which has no character FF
  const CountResult alone = Run(TextOfFolder{folder.Path(), false, {}});
  request.threads = 3;
  const CountResult together = Run(TextOfFolder{folder.Path(), false, {}});
  EXPECT_EQ(WordsOf(together), WordsOf(alone));
  EXPECT_EQ(alone.uncounted.bytesNotDecoded, 202);
  EXPECT_EQ(together.uncounted, alone.uncounted);
  ASSERT_EQ(together.reports.size(), 201U);
  EXPECT_EQ(together.reports[0].convertedFrom, CharacterSet::kWindows1253);
  EXPECT_EQ(together.reports[0].uncounted.bytesNotDecoded, 1);
  EXPECT_EQ(together.reports[200].convertedFrom, CharacterSet::kUtf16);
  EXPECT_EQ(together.reports[200].uncounted.bytesNotDecoded, 2);
}

TEST_F(Encodings, LinesOfConvertedFilesAreToldTheSameOnThreads) {
  static_cast<void>(folder.Write("a.txt", "caf\xE1\n\xE1\n"));
  static_cast<void>(folder.Write("b.txt", "caf\xE1\n\xE1"));
  request.encoding = CharacterSet::kWindows1253;
  const auto linesTold = [this](std::size_t threads) {
    request.threads = threads;
    observer.progress.clear();
    static_cast<void>(Run(TextOfFolder{folder.Path(), false, {}}));
    std::vector<std::int64_t> told;
    for (const CountProgress& progress : observer.progress) {
      if (told.empty() || told.back() != progress.bytesWithLongLineEnds) {
        told.push_back(progress.bytesWithLongLineEnds);
      }
    }
    return told;
  };
  EXPECT_EQ(linesTold(3), linesTold(1));
}

TEST_F(Encodings, LargeFilesAreConvertedOnThreads) {
  const std::string bytes = TimesOver(kRussianKoi8, 40'000);
  const CountResult alone = CountFile(bytes, CharacterSet::kKoi8R);
  request.threads = 3;
  const CountResult together = CountFile(bytes, CharacterSet::kKoi8R);
  EXPECT_EQ(WordsOf(together), WordsOf(alone));
  EXPECT_EQ(together.store.At(1).Count, 40'000);
  EXPECT_EQ(together.reports.at(0).bytesRead, static_cast<std::int64_t>(bytes.size()));
}

TEST_F(Encodings, GuessKnowsRussianPolishAndJapanese) {
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

TEST_F(Encodings, GuessIsMadeForEachFile) {
  static_cast<void>(folder.Write("a.txt", TimesOver(kRussianKoi8, 5)));
  static_cast<void>(folder.Write("b.txt", TimesOver(kRussianWindows, 5)));
  static_cast<void>(folder.Write("c.txt", "река"));
  request.encoding = CharacterSet::kGuess;
  const CountResult result = Run(TextOfFolder{folder.Path(), false, {}});
  EXPECT_EQ(WordsOf(result).find("река*11"), WordsOf(result).find("река")) << WordsOf(result);
  EXPECT_EQ(result.reports.at(2).convertedFrom, CharacterSet::kAsFound);
}

TEST_F(Encodings, GuessLeavesUtf8AndWhatNobodyKnows) {
  EXPECT_EQ(CharacterSetOf("слово", CharacterSet::kGuess), CharacterSet::kAsFound);
  EXPECT_EQ(CharacterSetOf("plain words", CharacterSet::kGuess), CharacterSet::kAsFound);
  EXPECT_EQ(CharacterSetOf("", CharacterSet::kGuess), CharacterSet::kAsFound);
  EXPECT_EQ(CharacterSetOf("c\0a\0t\0s\0"s, CharacterSet::kGuess), CharacterSet::kUtf16);
  EXPECT_EQ(CharacterSetOf("\0\x01\x02\x03\0\0"s, CharacterSet::kGuess), CharacterSet::kAsFound);
}

TEST_F(Encodings, GuessTakesForUtf8OnlyWhatNearlyIs) {
  // "l’été l’œuvre l’élève déjà" in Mac Roman, of which the library takes the first for UTF-8.
  const std::string mac =
      TimesOver("l\xD5\x8Et\x8E l\xD5\xCFuvre l\xD5\x8El\x8Fve d\x8Ej\x88\n", 5);
  EXPECT_EQ(CharacterSetOf(mac, CharacterSet::kGuess), CharacterSet::kAsFound);
  const std::string broken =
      TimesOver("L'été, les élèves allaient à la forêt.\n", 20) + "d\xE9j\xE0";
  EXPECT_EQ(CharacterSetOf(broken, CharacterSet::kGuess), CharacterSet::kUtf8);
}

TEST_F(Encodings, GuessKnowsUkrainian) {
  const CountResult result = CountFile(TimesOver(kUkrainianKoi8, 5), CharacterSet::kGuess);
  EXPECT_EQ(WordsOf(result),
            "біжить*5 вода*5 до*5 й*5 лісу*5 річка*5 сад*5 тиха*5 є*5 і*5 їжак*5 ґанок*5");
}

TEST_F(Encodings, GuessSeesWhichByteOfUtf16ComesFirst) {
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

TEST_F(Encodings, ByteOrderOfChineseAndJapaneseIsSeen) {
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

TEST_F(Encodings, LineEndsTellTheByteOrderOfFewCharacters) {
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

TEST_F(Encodings, ByteOrderOfAsciiIsSeen) {
  for (const std::u16string_view text : {u"NO 0_0", u"0", u"N\n", u"NN00\r\n", u"cat\x1B dog"}) {
    EXPECT_EQ(CharacterSetOf(InUtf16(text, false), CharacterSet::kUtf16), CharacterSet::kUtf16);
    if (text == u"0") continue;  // nobody can know
    EXPECT_EQ(CharacterSetOf(InUtf16(text, true), CharacterSet::kUtf16),
              CharacterSet::kUtf16HighByteFirst);
  }
}

TEST_F(Encodings, ChosenByteOrderIsTakenAtItsWord) {
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

TEST_F(Encodings, GuessIsPutOffBehindAHeadOfAscii) {
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

TEST_F(Encodings, WhatLooksLikeAMarkOfUtf16BehindAHeadOfAsciiIsNone) {
  for (const std::string_view mark : {"\xFF\xFE", "\xFE\xFF"}) {
    const std::string text =
        TimesOver("plain words ", 7000).append(mark) + TimesOver(" emu fox\n", 8000);
    const std::string_view letters = mark == "\xFF\xFE" ? " ÿþ" : " þÿ";
    EXPECT_EQ(LateGuessOfWhole(text), CharacterSet::kAsFound);
    EXPECT_EQ(WordsOf(CountFile(text, CharacterSet::kGuess)),
              "emu*8000 fox*8000 plain*7000 words*7000" + std::string(letters));
  }
}

TEST_F(Encodings, GuessIsPutOffInFoldersOnThreadsAsWell) {
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

TEST_F(Encodings, GuessIsPutOffInAWholeTextAsInFiles) {
  const std::string ascii = TimesOver("plain words ", 7000);
  const auto guessed = [](const std::string& text) {
    TextSource source(text);
    Uncounted uncounted;
    std::string whole = WholeText(source, CharacterSet::kGuess, uncounted);
    EXPECT_EQ(uncounted, Uncounted());
    return whole;
  };
  EXPECT_TRUE(guessed(ascii + TimesOver(kRussianKoi8, 5)).starts_with(ascii + "Каждое утро"));
  EXPECT_EQ(guessed(ascii + "река"), ascii + "река");
  EXPECT_EQ(guessed(ascii), ascii);
}

TEST_F(Encodings, HeadThatIsCutWithinACharacterIsUtf8) {
  const std::string cut = TimesOver("川", 30'000).substr(0, kGuessBytes);
  ASSERT_NE(kGuessBytes % 3, 0U);
  EXPECT_TRUE(LooksLikeUtf8(cut));
  EXPECT_EQ(CharacterSetOf(cut, CharacterSet::kGuess), CharacterSet::kAsFound);
  EXPECT_FALSE(LooksLikeUtf8("река\xD1!"));
  EXPECT_FALSE(LooksLikeUtf8("река\xD1")) << "nothing is behind it";
  EXPECT_FALSE(LooksLikeUtf8("c\0a\0"s)) << "UTF-16";
}

TEST_F(Encodings, WordsFilesInUtf8AreReadAsTheyAre) {
  EXPECT_EQ(CharacterSetOfWords("слово", CharacterSet::kKoi8R), CharacterSet::kAsFound);
  EXPECT_EQ(CharacterSetOfWords(kRussianKoi8, CharacterSet::kKoi8R), CharacterSet::kKoi8R);
  EXPECT_EQ(CharacterSetOfWords("c\0a\0"s, CharacterSet::kUtf16), CharacterSet::kUtf16);
  EXPECT_EQ(CharacterSetOfWords("caf\xE9", CharacterSet::kAsFound), CharacterSet::kAsFound);
  EXPECT_EQ(CharacterSetOfWords("caf\xE9", CharacterSet::kUtf8), CharacterSet::kUtf8);
}

TEST_F(Encodings, WordsFilesWithAHeadOfAsciiAreInTheChosenEncoding) {
  const std::string ascii = TimesOver("plain words ", 7000).substr(0, kGuessBytes);
  EXPECT_EQ(CharacterSetOfWords(ascii, CharacterSet::kKoi8R), CharacterSet::kKoi8R);
  EXPECT_EQ(CharacterSetOfWords(ascii, CharacterSet::kAsFound), CharacterSet::kAsFound);
  EXPECT_EQ(CharacterSetOfWords("\xD1\x8F" + ascii.substr(2), CharacterSet::kKoi8R),
            CharacterSet::kAsFound);
  for (const CharacterSet set : {CharacterSet::kUtf16, CharacterSet::kUtf16LowByteFirst}) {
    EXPECT_EQ(CharacterSetOfWords(ascii, set), CharacterSet::kAsFound);
  }
}

TEST_F(Encodings, WholeTextIsConverted) {
  Uncounted uncounted;
  TextSource koi8(kRussianKoi8);
  EXPECT_TRUE(WholeText(koi8, CharacterSet::kKoi8R, uncounted).starts_with("Каждое утро"));
  EXPECT_EQ(uncounted, Uncounted());
  TextSource latin("caf\xE9\r\nth\xE9\ncat");
  EXPECT_EQ(WholeText(latin, CharacterSet::kAsFound, uncounted), "café\r\nthé\ncat");
  EXPECT_EQ(uncounted, (Uncounted{0, 2, 0}));
  TextSource marked(
      "\xEF\xBB\xBF"
      "cat\xFF");
  EXPECT_EQ(WholeText(marked, CharacterSet::kKoi8U, uncounted), "cat\uFFFD");
  EXPECT_EQ(uncounted, (Uncounted{0, 2, 1}));
}

TEST_F(Encodings, WordsOfRussianAreWhole) {
  EXPECT_EQ(WordsOf(CountFile(kRussianKoi8, CharacterSet::kKoi8R)), kRussianWords);
}

}  // namespace
}  // namespace quillomat
