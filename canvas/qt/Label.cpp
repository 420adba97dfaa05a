#include "canvas/qt/Label.h"

namespace lensbench {

Label::Label(Form& form, const QString& name, const Place& place)
    : PlainControl(form, name, place) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

}  // namespace lensbench
