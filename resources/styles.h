/* The numbers of the control styles that the .rc files use, under the names that the platform gives them. */
#define WS_POPUP 0x80000000
#define WS_VISIBLE 0x10000000
#define WS_CAPTION 0x00C00000
#define WS_BORDER 0x00800000
#define WS_VSCROLL 0x00200000
#define WS_TABSTOP 0x00010000
#define DS_SETFONT 0x0040
#define ES_AUTOHSCROLL 0x0080
#define ES_MULTILINE 0x0004
#define ES_READONLY 0x0800
#define CBS_DROPDOWN 0x0002
#define CBS_DROPDOWNLIST 0x0003
#define LBS_NOTIFY 0x0001
#define BS_AUTOCHECKBOX 0x0003
#define LVS_REPORT 0x0001
#define LVS_SINGLESEL 0x0004
#define SS_CENTER 0x0001
