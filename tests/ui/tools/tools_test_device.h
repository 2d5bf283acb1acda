#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include "platform/fake/memory_file_system.h"
#include "platform/fake/memory_object_store.h"
#include "platform/fake/memory_registry.h"
#include "platform/fake/scripted_message_boxes.h"
#include "platform/image/image_codec.h"
#include "shell/registry_store.h"
#include "shell/resources.h"
#include "uikit/look.h"
#include "uikit/search_combo.h"
#include "uikit/search_popup.h"

namespace rlx::test {

/// What the tools ask for, in memory.
struct ToolsDevice {
    CMemoryRegistry registry;
    CRegistryStore settings{registry};
    CMemoryObjectStore store;
    CMemoryFileSystem files;
    CImageCodec codec;
    CResources resources;
    CScriptedMessageBoxes boxes;
    CLook look{files, codec};
};

/// The child of that class and name; a test that looks for one that is not there fails.
template <typename Widget>
Widget* Child(QWidget& parent, const char* name) {
    auto* found = parent.findChild<Widget*>(name);
    EXPECT_NE(found, nullptr) << name;
    return found;
}

/// Opens the list of a field, types and takes the best match.
inline void ChooseIn(QWidget& page, CSearchCombo* combo, const char* typed) {
    QTest::keyClicks(combo, typed);
    auto* popup = page.findChild<CSearchPopup*>();
    ASSERT_NE(popup, nullptr);
    QTest::keyClick(popup->findChild<QLineEdit*>("searchField"), Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace rlx::test
