// The toolkit's boxes for a file and for a printer, as a person answers them.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTimer>

#include "canvas/qt/Clock.h"
#include "canvas/qt/Dialogs.h"

namespace lensbench {
namespace {

class FileBoxes : public testing::Test {
 protected:
  FileBoxes() {
    // A home in which nothing has been kept before.
    qputenv("HOME", home.path().toUtf8());
    qunsetenv("XDG_CONFIG_HOME");
    QDir(home.path()).mkdir("folder");
  }

  QString path(const QString& name) const { return home.filePath("folder/" + name); }
  void make(const QString& name) const {
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }

  // Chooses a kind, types a name and accepts. Whether a file may be replaced is answered as often
  // as it is asked; a box that comes back is accepted as it stands, or cancelled without that.
  std::optional<QString> typed(const QString& name, int kind, bool replace) {
    int visits = 0;
    QTimer person;
    QObject::connect(&person, &QTimer::timeout, [&] {
      QWidget* box = QApplication::activeModalWidget();
      if (auto* question = qobject_cast<QMessageBox*>(box)) {
        ++asked;
        question->button(replace ? QMessageBox::Yes : QMessageBox::No)->click();
      } else if (auto* files = qobject_cast<QFileDialog*>(box)) {
        if (++visits == 1) {
          title = files->windowTitle();
          filters = files->nameFilters();
          proposed = files->selectedFiles().value(0);
          const QString filter = filters.at(kind);
          files->selectNameFilter(filter);
          emit files->filterSelected(filter);
          files->findChild<QLineEdit*>("fileNameEdit")->setText(name);
        } else if (!replace) {
          files->reject();
          return;
        }
        // Apart from this, which has to go on while the box asks.
        QTimer::singleShot(0, files, [files] { static_cast<QDialog*>(files)->accept(); });
      }
    });
    person.start(20);
    return dialogs.SaveBox("Save", "Bench.png", {{"Pixels", "png"}, {"Vectors", "svg"}});
  }

  QTemporaryDir home;
  QtClock clock;
  QtDialogs dialogs{clock};
  QString title;
  QStringList filters;
  QString proposed;
  int asked = 0;
};

TEST_F(FileBoxes, ABoxForAFileBeginsWithAProposalAndComesBackToTheLastFolder) {
  EXPECT_EQ(typed(path("a.png"), 0, false), path("a.png"));
  EXPECT_EQ(title, "Save");
  EXPECT_EQ(filters, (QStringList{"Pixels (*.png)", "Vectors (*.svg)"}));
  EXPECT_EQ(proposed, home.filePath("Bench.png"));
  EXPECT_EQ(typed(path("b.svg"), 1, false), path("b.svg"));
  EXPECT_EQ(proposed, path("Bench.png"));
}

TEST_F(FileBoxes, AMissingSuffixIsAdded) {
  EXPECT_EQ(typed(path("lens"), 0, false), path("lens.png"));
  EXPECT_EQ(typed(path("lens"), 1, false), path("lens.svg"));
  EXPECT_EQ(typed(path("lens n=1.5"), 1, false), path("lens n=1.5.svg"));
  EXPECT_EQ(typed(path("lens.SVG"), 0, false), path("lens.SVG"));
  EXPECT_EQ(asked, 0);
}

TEST_F(FileBoxes, AFileThatExistsIsTakenOnlyAfterThatWasAsked) {
  make("a.png");
  EXPECT_EQ(typed(path("a.png"), 0, false), std::nullopt);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(typed(path("a"), 0, true), path("a.png"));
  EXPECT_EQ(asked, 2);
}

TEST_F(FileBoxes, AFileWhoseSuffixWasAddedIsAskedAboutToo) {
  make("n=1.5.png");
  EXPECT_EQ(typed(path("n=1.5"), 0, false), std::nullopt);
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(typed(path("n=1.5"), 0, true), path("n=1.5.png"));
  EXPECT_EQ(asked, 1);
}

TEST_F(FileBoxes, NothingIsKeptOfWhereAPersonWas) {
  typed(path("a.png"), 0, false);
  QDirIterator files(home.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
  EXPECT_FALSE(files.hasNext()) << files.next().toStdString();
}

TEST_F(FileBoxes, WithoutAnyPrinterNoBoxIsShown) {
  qputenv("CUPS_SERVER", home.filePath("nobody").toUtf8());
  QPrinter printer;
  EXPECT_EQ(dialogs.PrintBox(printer), Printing::NoPrinter);
}

}  // namespace
}  // namespace lensbench
