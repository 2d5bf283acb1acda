#include "tools/clothing/size_tables.h"
#include "tools/clothing/text_ids.h"

namespace rlx {

namespace {

constexpr SizeTable kTables[] = {
    {kTextSizesBras,
     {{
         {u"USA", {u"30", u"32", u"34", u"36", u"38", u"40", u"42", u"44"}},
         {u"Europe", {u"65", u"70", u"75", u"80", u"85", u"90", u"95", u"100"}},
         {u"France", {u"80", u"85", u"90", u"95", u"100", u"105", u"110", u"115"}},
         {u"INTL", {u"60", u"65", u"70", u"75", u"80", u"85", u"90", u"95"}},
     }}},
    {kTextSizesDresses,
     {{
         {u"USA", {u"3", u"5", u"7", u"9", u"11", u"12", u"13", u"14", u"15", u"16", u"18"}},
         {u"Europe", {u"36", u"38", u"38", u"40", u"40", u"42", u"42", u"44", u"44", u"46", u"48"}},
         {u"UK", {u"8", u"10", u"11", u"12", u"13", u"14", u"15", u"16", u"17", u"18", u"20"}},
         {u"Japan", {u"2", u"4", u"6", u"8", u"9", u"11", u"12", u"13", u"14", u"15", u"17"}},
     }}},
    {kTextSizesMensShirts,
     {{
         {u"USA", {u"14", u"14.5", u"15", u"15.5", u"16", u"16.5", u"17", u"17.5"}},
         {u"Europe", {u"36", u"37", u"38", u"39", u"41", u"42", u"43", u"44"}},
         {u"UK", {u"14", u"14.5", u"15", u"15.5", u"16", u"16.5", u"17", u"17.5"}},
         {u"Japan", {u"36", u"37", u"38", u"39", u"41", u"42", u"43", u"44"}},
     }}},
    {kTextSizesBlouses,
     {{
         {u"USA", {u"8", u"10", u"12", u"14", u"16", u"18", u"20", u"22", u"24", u"26"}},
         {u"Europe", {u"36", u"38", u"40", u"42", u"44", u"46", u"48", u"50", u"52", u"54"}},
         {u"UK", {u"30", u"32", u"34", u"36", u"38", u"40", u"42", u"44", u"46", u"48"}},
         {u"Japan", {u"7", u"9", u"11", u"13", u"15", u"17", u"19", u"21", u"23", u"25"}},
     }}},
    {kTextSizesChildrensClothing,
     {{
         {u"USA", {u"2", u"4", u"6", u"8", u"10", u"12"}},
         {u"Europe", {u"40", u"50", u"60", u"70", u"80", u"90"}},
         {u"UK", {u"16", u"20", u"24", u"28", u"32", u"38"}},
         {u"Japan", {u"90", u"100", u"110", u"120", u"130", u"140"}},
     }}},
    {kTextSizesMensShoes,
     {{
         {u"USA", {u"5", u"6", u"7", u"8", u"9", u"10", u"11", u"12"}},
         {u"Europe", {u"37", u"38", u"39.5", u"41", u"42", u"43", u"44.5", u"46"}},
         {u"UK", {u"4", u"5", u"6", u"7", u"8", u"9", u"10", u"11"}},
         {u"Japan", {u"", u"", u"24.5", u"25.5", u"26.5", u"27.5", u"28", u"29"}},
     }}},
    {kTextSizesWomensShoes,
     {{
         {u"USA", {u"4", u"5", u"6", u"7", u"8", u"9", u"10"}},
         {u"Europe", {u"35", u"36", u"37", u"38", u"39", u"40", u"41"}},
         {u"UK", {u"2.5", u"3.5", u"4.5", u"5.5", u"6.5", u"7.5", u"8.5"}},
         {u"Japan", {u"21.5", u"22.5", u"23.5", u"24.5", u"25", u"26 (rare)"}},
     }}},
    {kTextSizesChildrensShoes,
     {{
         {u"USA", {u"8", u"9", u"10", u"11", u"12", u"13", u"1", u"2"}},
         {u"Europe", {u"24", u"25", u"27", u"28", u"29", u"30", u"32", u"33"}},
         {u"UK", {u"7", u"8", u"9", u"10", u"11", u"12", u"13", u"1"}},
         {u"Japan", {u"15", u"16", u"16.5", u"17.5", u"18.5", u"19", u"20", u"21"}},
     }}},
    {kTextSizesMensSuits,
     {{
         {u"USA", {u"30", u"32", u"34", u"36", u"38", u"40", u"42", u"44", u"46", u"48"}},
         {u"Europe", {u"40", u"42", u"44", u"46", u"48", u"50", u"52", u"54", u"56", u"58"}},
         {u"UK", {u"30", u"32", u"34", u"36", u"38", u"40", u"42", u"44", u"46", u"48"}},
         {u"Japan", {}, u"(US/Japan) = 34/S 38/M 40/L 44/LL"},
     }}},
    {kTextSizesMensTrousers,
     {{
         {u"USA", {u"30", u"32", u"34", u"36", u"38", u"40"}},
         {u"Europe", {u"46", u"48", u"50", u"52", u"54", u"56"}},
         {u"UK", {u"46", u"48", u"52", u"54", u"56", u"58"}},
         {u"Japan", {u"46", u"48", u"50", u"52", u"54", u"56"}},
     }}},
    {kTextSizesWomensTrousers,
     {{
         {u"USA", {u"8", u"10", u"12", u"14", u"16", u"18"}},
         {u"Europe", {u"36", u"38", u"40", u"42", u"44", u"46"}},
         {u"UK", {u"10", u"12", u"14", u"16", u"18", u"20"}},
         {u"Japan", {u"36", u"38", u"40", u"42", u"44", u"46"}},
     }}},
    {kTextSizesChildrensTrousers,
     {{
         {u"USA", {u"2", u"4", u"6", u"8", u"10"}},
         {u"Europe", {u"40-55", u"50-55", u"60-65", u"70-75", u"80-85"}},
         {u"UK", {u"16-18", u"20-22", u"24-26", u"28-30", u"32-34"}},
         {u"Japan", {u"90", u"100", u"110", u"120", u"130"}},
     }}},
};

static_assert(std::size(kTables) == 12);

}  // namespace

const SizeTable& SizesOf(SizeTableId id) {
    return kTables[static_cast<std::size_t>(id)];
}

}  // namespace rlx
