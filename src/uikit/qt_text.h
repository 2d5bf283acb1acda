#pragma once

#include <QString>
#include <string>
#include <string_view>

/// Qt's strings hold the same UTF-16 units as ours.
namespace rlx {

inline QString ToQString(std::u16string_view text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::u16string FromQString(const QString& text) {
    return text.toStdU16String();
}

}  // namespace rlx
