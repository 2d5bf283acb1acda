#pragma once

#include <QWidget>

#include "platform/file_system.h"
#include "platform/message_boxes.h"
#include "shell/application_folder.h"
#include "shell/resources.h"

namespace rlx {

/// The box with the name and the version of the program.
void ShowAbout(const CResources& resources, IMessageBoxes& boxes);

/// The dialog with the origins and licences of the data, from the application folder. User-interface thread.
void ShowCredits(const CResources& resources, IFileSystem& files, const CApplicationFolder& folder, QWidget* window);

}  // namespace rlx
