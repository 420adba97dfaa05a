// The lessons as a whole: their number, the guide, and how they are set up.
#include <QFile>
#include <QImage>
#include <QTest>
#include <QTextBrowser>

#include "app/Help.h"
#include "app/ProgramState.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/help/Guide.h"
#include "tests/screens/app/Lessons.h"

namespace lensbench {
namespace {

TEST_F(LessonsTest, ThereAreTwelveAndEachIsWhole) {
  ASSERT_EQ(lessons::all().size(), 12U);
  for (const lessons::Lesson& lesson : lessons::all()) {
    for (const lessons::Words& words :
         {lesson.title, lesson.see, lesson.act, lesson.look, lesson.question, lesson.answer}) {
      EXPECT_FALSE(words.greek.empty());
      EXPECT_FALSE(words.english.empty());
    }
    EXPECT_EQ(lesson.question.english.back(), '?');
    EXPECT_EQ(lesson.question.greek.back(), ';');
  }
}

TEST_F(LessonsTest, TheGuideHoldsThemAsTheyAre) {
  QFile page(SOURCE_FOLDER "/docs/guide.md");
  ASSERT_TRUE(page.open(QIODevice::ReadOnly));
  EXPECT_EQ(page.readAll().toStdString(), lessons::guide()) << "./run --guide writes it anew";
  for (std::size_t i = 1; i <= lessons::all().size(); ++i) {
    const QString picture =
        SOURCE_FOLDER "/docs/" + QString::fromStdString(lessons::picturePath(i));
    EXPECT_FALSE(QImage(picture).isNull()) << picture.toStdString();
  }
}

TEST_F(LessonsTest, SettingOneUpIsOneStepThatUndoTakesBack) {
  // Once every window has its size.
  for (std::size_t i : {0U, 10U, 1U}) {
    program.screens.startLesson(i);
    QTest::qWait(200);
  }
  // As no lesson has it.
  program.screens.kelmo().controls().aktina1.Value(123);
  const ProgramState before = program.screens.state();
  for (std::size_t i = 0; i < lessons::all().size(); ++i) {
    program.screens.startLesson(i);
    QCoreApplication::processEvents();
    EXPECT_NE(program.screens.state(), before) << i;
    program.screens.undo();
    QCoreApplication::processEvents();
    const ProgramState after = program.screens.state();
    EXPECT_EQ(after.kelmo, before.kelmo) << i;
    EXPECT_EQ(after.moniaktina, before.moniaktina) << i;
    EXPECT_EQ(after.ElSahl, before.ElSahl) << i;
    EXPECT_EQ(after.eisagogiko, before.eisagogiko) << i;
  }
}

TEST_F(LessonsTest, TheHelpWindowSetsThemUp) {
  program.screens.help();
  auto* text = program.screens.helpWindow().window()->findChild<QTextBrowser*>();
  EXPECT_FALSE(program.screens.moniaktina().isVisible());
  emit text->anchorClicked(QUrl("lesson:0"));
  EXPECT_TRUE(program.screens.moniaktina().isVisible());
  for (const lessons::Lesson& lesson : lessons::all()) {
    EXPECT_TRUE(text->toPlainText().contains(QString::fromUtf8(lesson.answer.greek)));
    EXPECT_TRUE(text->toPlainText().contains(QString::fromUtf8(lesson.answer.english)));
  }
}

}  // namespace
}  // namespace lensbench
