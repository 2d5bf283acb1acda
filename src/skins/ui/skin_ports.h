#pragma once

#include <filesystem>

#include "platform/file_system.h"
#include "platform/image_codec.h"
#include "platform/message_boxes.h"
#include "shell/resources.h"

namespace rlx {

/// What the dialogs of the look work with. None is owned.
struct SkinPorts {
    IFileSystem& files;
    const IImageCodec& codec;
    const CResources& resources;
    IMessageBoxes& boxes;
};

}  // namespace rlx
