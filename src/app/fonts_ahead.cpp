#include "app/fonts_ahead.h"

#include <fontconfig/fontconfig.h>

namespace rlx {

CFontsAhead::CFontsAhead() : m_thread([] { FcInit(); }) {}

}  // namespace rlx
