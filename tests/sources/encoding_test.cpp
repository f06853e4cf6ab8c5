// Counts of texts in an encoding that was chosen or guessed.
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "base/byte_source.h"
#include "sources/converted_source.h"
#include "sources/encoding_fixture.h"
#include "sources/encoding_guess.h"
#include "support/chunked_source.h"
#include "support/encoded_texts.h"

namespace quillomat {
namespace {

using namespace std::string_literals;

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
  GuessedSets guessed;
  Uncounted uncounted;
  TextSource koi8(kRussianKoi8);
  EXPECT_TRUE(WholeText(koi8, CharacterSet::kKoi8R, uncounted, guessed).starts_with("Каждое утро"));
  EXPECT_EQ(uncounted, Uncounted());
  TextSource latin("caf\xE9\r\nth\xE9\ncat");
  EXPECT_EQ(WholeText(latin, CharacterSet::kAsFound, uncounted, guessed), "café\r\nthé\ncat");
  EXPECT_EQ(uncounted, (Uncounted{0, 2, 0}));
  TextSource marked(
      "\xEF\xBB\xBF"
      "cat\xFF");
  EXPECT_EQ(WholeText(marked, CharacterSet::kKoi8U, uncounted, guessed), "cat\uFFFD");
  EXPECT_EQ(uncounted, (Uncounted{0, 2, 1}));
}

TEST_F(Encodings, WordsOfRussianAreWhole) {
  EXPECT_EQ(WordsOf(CountFile(kRussianKoi8, CharacterSet::kKoi8R)), kRussianWords);
}

}  // namespace
}  // namespace quillomat
