#pragma once

/// Where the feeds keep what they remember, all below the machine's root of the registry.
namespace rlx {

inline constexpr char16_t kKeyApplication[] = u"Roamlytix";
inline constexpr char16_t kKeyCurrencies[] = u"Roamlytix\\currencies";

inline constexpr char16_t kValueSession[] = u"RXSI";       ///< text: the server's session identifier
inline constexpr char16_t kValueNewsId[] = u"newsid";      ///< text: the latest news item fetched; "0" when none
inline constexpr char16_t kValueNewNews[] = u"newnews";    ///< number: 1 when there is news not yet fetched
inline constexpr char16_t kValueNewsRead[] = u"newsread";  ///< number: 1 when the fetched page was shown
inline constexpr char16_t kValueHomeName[] = u"hlname";    ///< text: name of the home city

/// Text: the `GuidText` of each connection that needs no confirmation any more, each followed by ";".
inline constexpr char16_t kValueAgreed[] = u"connok";

/// Texts in `kKeyCurrencies`: the day of the last update ("2026-09-29") and the host that it came from.
inline constexpr char16_t kValueRatesDate[] = u"ratesdate";
inline constexpr char16_t kValueRatesSource[] = u"ratesfrom";

/// Below the user's root: the name that the owner typed.
inline constexpr char16_t kKeyOwner[] = u"ControlPanel\\Owner";
inline constexpr char16_t kValueOwner[] = u"Owner";

}  // namespace rlx
