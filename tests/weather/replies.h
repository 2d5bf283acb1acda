#pragma once

#include <string>

/// Replies to build cases from.
namespace rlx::test {

inline const std::u16string kReplyHead =
    u"weather_1#\nplace_paris_france#\nsource_Open-Meteo#\nissued_2026-11-22T18:00Z#\n";

inline const std::u16string kGoodReply = kReplyHead +
                                         u"2026-11-22_3;9.1;4.0;0.0;10;14.5;230;81;08:14;17:01#\n"
                                         u"2026-11-23_61;10.6;6.3;4.2;75;22.0;250;88;08:16;17:00#\n"
                                         u"2026-11-24_95;;5.5;;;31.3;;;08:17;16:59#\n"
                                         u"end_3#\n";

/// A reply of one day with these ten fields.
inline std::u16string OneDayReply(const std::u16string& fields) {
    return kReplyHead + u"2026-11-22_" + fields + u"#end_1#";
}

/// A sound reply for any place and issue time.
inline std::u16string ReplyFor(const std::u16string& feedName, const std::u16string& issued) {
    return u"weather_1#place_" + feedName + u"#source_test#issued_" + issued + u"#" + issued.substr(0, 10) +
           u"_0;20;10;;;;;;;#end_1#";
}

}  // namespace rlx::test
