// What screen readers are told of a form beyond what the toolkit knows of its own widgets.
#pragma once

namespace lensbench {

// From now on a drawing area is a canvas described in words, a label tells its text beside its
// name, and an entry of a menu bar has a name in both languages and a description. May be called
// again.
void speakOfForms();

}  // namespace lensbench
