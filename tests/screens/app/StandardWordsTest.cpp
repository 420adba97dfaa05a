// The toolkit's own dialogs on desktops of several languages.
#include <gtest/gtest.h>
#include <memory>

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTranslator>

#include "app/StandardWords.h"
#include "tests/screens/app/Shell.h"

namespace lensbench {
namespace {

// The words of a desktop, until the test is over.
class StandardWords : public ::testing::Test {
 protected:
  void speak(const char* locale) { translateStandardWords(*qApp, QLocale(locale)); }
  ~StandardWords() override {
    for (QTranslator* translator : qApp->findChildren<QTranslator*>()) delete translator;
  }

  static QString button(QDialogButtonBox::StandardButton which) {
    const QDialogButtonBox box(which);
    return box.button(which)->text().remove('&');
  }
  static QStringList menuOf(QLineEdit& field) {
    const std::unique_ptr<QMenu> menu(field.createStandardContextMenu());
    QStringList texts;
    for (const QAction* action : menu->actions()) {
      const QString text = action->text().section('\t', 0, 0).remove('&');
      if (!text.isEmpty()) texts << text;
    }
    return texts;
  }
};

TEST_F(StandardWords, AreGreekOnAGreekDesktop) {
  speak("el_GR");
  EXPECT_EQ(button(QDialogButtonBox::Ok), "Εντάξει");
  EXPECT_EQ(button(QDialogButtonBox::Cancel), "Άκυρο");
  EXPECT_EQ(button(QDialogButtonBox::Save), "Αποθήκευση");
  EXPECT_EQ(button(QDialogButtonBox::Yes), "Ναι");
  EXPECT_EQ(button(QDialogButtonBox::No), "Όχι");
  EXPECT_EQ(button(QDialogButtonBox::Close), "Κλείσιμο");
  const QMessageBox message(QMessageBox::NoIcon, "t", "t", QMessageBox::Ok);
  EXPECT_EQ(message.button(QMessageBox::Ok)->text().remove('&'), "Εντάξει");
}

TEST_F(StandardWords, OfAllStandardButtonsAreGreekOnAGreekDesktop) {
  speak("el_CY");
  for (unsigned bit = QDialogButtonBox::FirstButton; bit <= QDialogButtonBox::LastButton;
       bit <<= 1u) {
    const QString text = button(static_cast<QDialogButtonBox::StandardButton>(bit));
    ASSERT_FALSE(text.isEmpty());
    EXPECT_EQ(text.front().script(), QChar::Script_Greek) << text.toStdString();
  }
}

TEST_F(StandardWords, OfAFileDialogAreGreekOnAGreekDesktop) {
  speak("el_GR");
  QFileDialog dialog(nullptr, {}, {}, {});
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  QStringList latin;
  for (const QLabel* label : dialog.findChildren<QLabel*>()) {
    const QString text = label->text().remove('&');
    if (!text.isEmpty() && text.front().script() == QChar::Script_Latin) latin << text;
  }
  for (const QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
    const QString text = button->text().remove('&');
    if (!text.isEmpty() && text.front().script() == QChar::Script_Latin) latin << text;
    if (button->toolTip().size() > 0 && button->toolTip().front().script() == QChar::Script_Latin) {
      latin << button->toolTip();
    }
  }
  EXPECT_EQ(latin, QStringList());
  EXPECT_EQ(dialog.labelText(QFileDialog::FileName).remove('&'), "Όνομα αρχείου:");
}

TEST_F(StandardWords, OfTheMenuOfATextFieldAreGreekOnAGreekDesktop) {
  speak("el_GR");
  QLineEdit field("7");
  const QStringList greek{"Αναίρεση",   "Ακύρωση αναίρεσης", "Αποκοπή",     "Αντιγραφή",
                          "Επικόλληση", "Διαγραφή",          "Επιλογή όλων"};
  EXPECT_EQ(menuOf(field), greek);
}

TEST_F(StandardWords, AreEnglishElsewhere) {
  for (const char* locale : {"en_US", "de_DE", "C", "tr_TR"}) {
    speak(locale);
    EXPECT_EQ(button(QDialogButtonBox::Ok), "OK");
    EXPECT_EQ(button(QDialogButtonBox::Cancel), "Cancel");
    EXPECT_EQ(button(QDialogButtonBox::Save), "Save");
  }
}

TEST_F(StandardWords, LeaveOtherTextsAlone) {
  speak("el_GR");
  EXPECT_EQ(QCoreApplication::translate("QDialog", "no word of the toolkit"),
            "no word of the toolkit");
  EXPECT_EQ(QCoreApplication::translate("kelmo", "Save"), "Save");
}

}  // namespace
}  // namespace lensbench
