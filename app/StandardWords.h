// The words of the toolkit's own dialogs: buttons, file and print dialogs, menus of text fields.
#pragma once

class QCoreApplication;
class QLocale;

namespace lensbench {

// Greek for a desktop that speaks Greek; elsewhere they stay English, as the program's own texts
// are in both. The toolkit brings no Greek of its own everywhere, so the words are ours.
void translateStandardWords(QCoreApplication& application, const QLocale& desktop);

}  // namespace lensbench
