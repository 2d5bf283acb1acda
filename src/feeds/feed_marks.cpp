#include "feeds/feed_marks.h"

namespace rlx {

CFeedMarks::CFeedMarks(IRegistry& registry) : m_registry(registry) {
    for (std::size_t i = 0; i < kNames.size(); ++i)
        m_values[i] = m_registry.Query(RegistryRoot::kLocalMachine, keys::kRoamlytix, kNames[i]);
}

void CFeedMarks::Restore() {
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        if (m_registry.Query(RegistryRoot::kLocalMachine, keys::kRoamlytix, kNames[i]) == m_values[i]) continue;
        if (m_values[i]) {
            m_registry.Set(RegistryRoot::kLocalMachine, keys::kRoamlytix, kNames[i], *m_values[i]);
        } else {
            m_registry.Remove(RegistryRoot::kLocalMachine, keys::kRoamlytix, kNames[i]);
        }
    }
}

}  // namespace rlx
