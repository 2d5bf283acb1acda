#pragma once

#include "shell/text_id.h"

/// What the self-check finds.
namespace rlx {

inline constexpr TextId kTextDoctorSound = 44000;
inline constexpr TextId kTextDoctorFaulty = 44001;
inline constexpr TextId kTextDoctorMissing = 44002;
inline constexpr TextId kTextDoctorNoCount = 44003;
inline constexpr TextId kTextDoctorCount = 44004;
inline constexpr TextId kTextDoctorFields = 44005;
inline constexpr TextId kTextDoctorEmptyField = 44006;
inline constexpr TextId kTextDoctorTwice = 44007;
inline constexpr TextId kTextDoctorNoNumber = 44008;
inline constexpr TextId kTextDoctorNoCity = 44009;
inline constexpr TextId kTextDoctorFeedName = 44010;
inline constexpr TextId kTextDoctorRate = 44011;
inline constexpr TextId kTextDoctorAddress = 44012;
inline constexpr TextId kTextDoctorAddressEnd = 44013;
inline constexpr TextId kTextDoctorPicture = 44014;
inline constexpr TextId kTextDoctorPack = 44015;
inline constexpr TextId kTextDoctorStore = 44016;
inline constexpr TextId kTextDoctorLanguages = 44017;
inline constexpr TextId kTextDoctorLanguageChosen = 44018;
inline constexpr TextId kTextDoctorNoDate = 44019;
inline constexpr TextId kTextDoctorCode = 44020;

}  // namespace rlx
