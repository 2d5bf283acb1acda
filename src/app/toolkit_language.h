#pragma once

#include <QString>

namespace rlx {

/// Puts the toolkit's own words into a language and its country, such as "fr" or "pt_PT": menus of fields, keys in
/// menus, and the months and days of calendars. The country of the system's settings counts first, if the language is
/// spoken there. Words that Qt has no translation of on this system stay English; so do all when nobody knows the
/// language. Needs the QApplication, which then owns the words; user-interface thread.
void SetToolkitLanguage(const QString& language);

}  // namespace rlx
