// The picture on its way out of the program: what arrives, what is said when it does not, and that
// nothing is lost then.
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QPrinter>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include "canvas/qt/DrawingArea.h"
#include "canvas/qt/Form.h"
#include "canvas/qt/LineControl.h"
#include "canvas/qt/TakenPicture.h"
#include "screens/Export.h"
#include "tests/screens/support/FakeDialogs.h"

namespace lensbench {
namespace {

class ExportTest : public testing::Test {
 protected:
  ExportTest() {
    form.setAccessibleName("Πάγκος · Bench");
    blade.BorderColor(RGB(0, 0, 255));
    blade.BorderWidth(4);
    form.area().drawBy({},
                       [](Canvas& canvas) { canvas.Line(150, 150, 2850, 1350, RGB(255, 0, 0)); });
  }

  QString path(const QString& name) const { return folder.filePath(name); }
  QByteArray contents(const QString& name) const {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  void put(const QString& name, const QByteArray& bytes) const {
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  void save(const QString& file) {
    dialogs.fileName = file;
    savePicture(form, dialogs);
  }
  void expectSaid(const QString& greek, const QString& english) const {
    ASSERT_EQ(dialogs.messages.size(), 1);
    const QStringList lines = dialogs.messages.front().split('\n');
    ASSERT_EQ(lines.size(), 2) << dialogs.messages.front().toStdString();
    EXPECT_TRUE(lines[0].contains(greek)) << lines[0].toStdString();
    EXPECT_TRUE(lines[1].contains(english)) << lines[1].toStdString();
  }

  QTemporaryDir folder;
  FakeDialogs dialogs;
  Form form{{"bench", "", 0, 0, 3000, 1500, RGB(255, 255, 255)}};
  LineControl blade{form, "blade", {1500, 300, 1500, 900}};
};

TEST_F(ExportTest, CopiesAnImageAndAVectorPictureAtOnce) {
  copyPicture(form);
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  ASSERT_TRUE(data->hasImage());
  EXPECT_EQ(qvariant_cast<QImage>(data->imageData()).convertToFormat(QImage::Format_RGB32),
            pixelsOf(form));
  QSvgRenderer vectors(data->data("image/svg+xml"));
  ASSERT_TRUE(vectors.isValid());
  EXPECT_EQ(vectors.viewBox(), QRect(0, 0, 200, 100));
  EXPECT_TRUE(dialogs.messages.isEmpty());
}

TEST_F(ExportTest, ProposesANameAndOffersThreeKindsOfFile) {
  savePicture(form, dialogs);
  EXPECT_EQ(dialogs.proposed, QStringList{"Bench.png"});
  EXPECT_EQ(dialogs.titles, QStringList{"Αποθήκευση της εικόνας · Save the picture"});
  QStringList suffixes;
  for (const FileKind& kind : dialogs.kinds) suffixes << kind.suffix;
  EXPECT_EQ(suffixes, (QStringList{"png", "svg", "pdf"}));
  // The box was cancelled.
  EXPECT_TRUE(dialogs.messages.isEmpty());
  EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(ExportTest, SavesWhatTheSuffixSays) {
  for (const char* name : {"a.png", "b.svg", "c.pdf", "D.PNG"}) save(path(name));
  EXPECT_EQ(QImage::fromData(contents("a.png"), "PNG").convertToFormat(QImage::Format_RGB32),
            pixelsOf(form));
  EXPECT_EQ(contents("D.PNG"), contents("a.png"));
  EXPECT_EQ(contents("b.svg"), svg(form));
  EXPECT_TRUE(contents("c.pdf").startsWith("%PDF-"));
  EXPECT_TRUE(contents("c.pdf").endsWith("%%EOF\n"));
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 4);
  EXPECT_TRUE(dialogs.messages.isEmpty());
}

TEST_F(ExportTest, ReplacesAFileThatMayBeReplaced) {
  put("a.svg", "before");
  save(path("a.svg"));
  EXPECT_EQ(contents("a.svg"), svg(form));
}

TEST_F(ExportTest, SaysThatNothingCanBeWrittenWhereNoFolderIs) {
  put("file", "before");
  save(path("file/a.png"));
  expectSaid("δεν μπορεί να γραφτεί εκεί", "cannot be written there");
  EXPECT_TRUE(dialogs.messages.front().contains(path("file/a.png")));
  EXPECT_EQ(contents("file"), "before");
}

TEST_F(ExportTest, SaysThatNothingCanBeWrittenIntoAFolderThatTakesNothing) {
  save("/proc/a.png");
  expectSaid("δεν μπορεί να γραφτεί εκεί", "cannot be written there");
}

TEST_F(ExportTest, SaysThatAFolderIsNoFile) {
  ASSERT_TRUE(QDir(folder.path()).mkdir("a.png"));
  save(path("a.png"));
  expectSaid("δεν μπορεί να γραφτεί εκεί", "cannot be written there");
  EXPECT_TRUE(QFileInfo(path("a.png")).isDir());
}

TEST_F(ExportTest, SaysThatADeviceIsFullAndLeavesItThere) {
  ASSERT_TRUE(QFile::link("/dev/full", path("a.png")));
  save(path("a.png"));
  expectSaid("ίσως επειδή ο δίσκος είναι γεμάτος", "perhaps because the disk is full");
  EXPECT_FALSE(QFileInfo("/dev/full").isFile());
  EXPECT_TRUE(QFileInfo("/dev/full").exists());
}

// As on a disk with room for so many bytes.
class RoomForBytes {
 public:
  explicit RoomForBytes(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit less{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &less);
  }
  ~RoomForBytes() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, SIG_DFL);
  }
  RoomForBytes(const RoomForBytes&) = delete;
  RoomForBytes& operator=(const RoomForBytes&) = delete;

 private:
  rlimit before_{};
};

TEST_F(ExportTest, KeepsAFileWholeThatCouldNotBeReplaced) {
  for (const char* name : {"a.png", "a.svg", "a.pdf"}) {
    put(name, "before");
    dialogs.messages.clear();
    {
      const RoomForBytes room(100);
      save(path(name));
    }
    expectSaid("δεν γράφτηκε ολόκληρο", "was not written to its end");
    EXPECT_EQ(contents(name), "before");
  }
  // Nor is anything left beside it.
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 3);
}

TEST_F(ExportTest, PrintsOnOnePageThatLiesAsThePictureDoes) {
  dialogs.printing = [&](QPrinter& printer) {
    EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Landscape);
    EXPECT_EQ(printer.docName(), "Πάγκος · Bench");
    printer.setOutputFileName(path("page.pdf"));
    printer.setPageSize(QPageSize(QPageSize::A4));
    return Printing::Wanted;
  };
  printPicture(form, dialogs);
  const QByteArray page = contents("page.pdf");
  EXPECT_TRUE(page.contains("/Count 1\n")) << page.left(400).toStdString();
  const auto size = page.mid(page.indexOf("/MediaBox"), 60);
  EXPECT_TRUE(size.startsWith("/MediaBox [0 0 842.000000 595.000000]")) << size.toStdString();
  EXPECT_TRUE(dialogs.messages.isEmpty());
}

TEST_F(ExportTest, PrintsATallPictureOnAnUprightPage) {
  form.clientSize(1500, 3000);
  dialogs.printing = [&](QPrinter& printer) {
    EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Portrait);
    return Printing::Cancelled;
  };
  printPicture(form, dialogs);
  EXPECT_TRUE(dialogs.messages.isEmpty());
}

TEST_F(ExportTest, SaysThatThereIsNoPrinter) {
  dialogs.printing = [](QPrinter&) { return Printing::NoPrinter; };
  printPicture(form, dialogs);
  expectSaid("Δεν βρέθηκε εκτυπωτής", "No printer was found");
}

TEST_F(ExportTest, SaysThatAPageCouldNotBePrintedIntoAFile) {
  put("file", "before");
  dialogs.printing = [&](QPrinter& printer) {
    printer.setOutputFileName(path("file/page.pdf"));
    return Printing::Wanted;
  };
  printPicture(form, dialogs);
  expectSaid("δεν μπορεί να γραφτεί εκεί", "cannot be written there");
  EXPECT_EQ(contents("file"), "before");
}

}  // namespace
}  // namespace lensbench
