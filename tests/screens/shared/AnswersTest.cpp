// Angles as people type them.
#include <gtest/gtest.h>

#include <QLocale>

#include "canvas/RuntimeError.h"
#include "screens/Answers.h"

namespace lensbench {
namespace {

class Answers : public ::testing::TestWithParam<const char*> {
 protected:
  Answers() { QLocale::setDefault(QLocale(GetParam())); }
  ~Answers() override { QLocale::setDefault(QLocale::c()); }
};

TEST_P(Answers, MayHaveAPointOrACommaWhateverTheLocale) {
  EXPECT_EQ(numberFromAnswer("22.5"), 22.5);
  EXPECT_EQ(numberFromAnswer("22,5"), 22.5);
  EXPECT_EQ(numberFromAnswer("-,5"), -0.5);
}

TEST_P(Answers, MayHaveATypographicMinusBlanksAroundAndADegreeSignBehind) {
  EXPECT_EQ(numberFromAnswer("−30"), -30.0);
  EXPECT_EQ(numberFromAnswer("45°"), 45.0);
  EXPECT_EQ(numberFromAnswer(" \t−7,25 ° "), -7.25);
  EXPECT_EQ(numberFromAnswer(QStringLiteral("\u00a030\u00a0°\u00a0")), 30.0);
  EXPECT_EQ(numberFromAnswer("1e−1"), 0.1);
}

TEST_P(Answers, ThatAreNoNumberAreQuotedInTheSentenceOfTheError) {
  for (const char* answer : {"", " ", "°", "abc", "4 5", "1.000,5", "°45", "45°°", "30 rad"}) {
    try {
      static_cast<void>(numberFromAnswer(answer));
      ADD_FAILURE() << answer << " was taken for a number";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), 13);
      EXPECT_EQ(error.detail(),
                "Η απάντηση «" + std::string(answer) +
                    "» δεν είναι αριθμός· χρειάζεται μία γωνία σε μοίρες, όπως 30 ή -22,5. "
                    "The answer “" +
                    answer +
                    "” is no number; an angle in degrees was expected, such as 30 or -22.5.");
    }
  }
}

TEST_P(Answers, ThatAreEndlessAreQuotedInPart) {
  try {
    static_cast<void>(numberFromAnswer(QString(5000, 'x')));
    FAIL() << "it was taken for a number";
  } catch (const RuntimeError& error) {
    EXPECT_NE(error.detail().find("“" + std::string(60, 'x') + "…”"), std::string::npos);
  }
}

INSTANTIATE_TEST_SUITE_P(Locales, Answers, ::testing::Values("C", "el_GR", "en_US", "de_DE"));

}  // namespace
}  // namespace lensbench
