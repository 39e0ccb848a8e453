// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "HeifLibrary.h"

#include <QtCore/QLibrary>

#include <optional>

namespace printdialog {
namespace {

std::optional<HeifLibrary> loaded()
{
    QLibrary library(QStringLiteral("heif"), 1);
    HeifLibrary heif = {};
    bool isComplete = library.load();
    const auto resolve = [&](auto &function, const char *name) {
        function =
            isComplete ? reinterpret_cast<std::decay_t<decltype(function)>>(library.resolve(name)) : nullptr;
        isComplete = isComplete && function;
    };
    resolve(heif.contextAlloc, "heif_context_alloc");
    resolve(heif.contextFree, "heif_context_free");
    resolve(heif.setMaximumImageSize, "heif_context_set_maximum_image_size_limit");
    resolve(heif.readFromMemory, "heif_context_read_from_memory_without_copy");
    resolve(heif.primaryImageHandle, "heif_context_get_primary_image_handle");
    resolve(heif.handleRelease, "heif_image_handle_release");
    resolve(heif.handleWidth, "heif_image_handle_get_width");
    resolve(heif.handleHeight, "heif_image_handle_get_height");
    resolve(heif.handleHasAlpha, "heif_image_handle_has_alpha_channel");
    resolve(heif.profileType, "heif_image_handle_get_color_profile_type");
    resolve(heif.rawProfileSize, "heif_image_handle_get_raw_color_profile_size");
    resolve(heif.rawProfile, "heif_image_handle_get_raw_color_profile");
    resolve(heif.nclxProfile, "heif_image_handle_get_nclx_color_profile");
    resolve(heif.nclxProfileFree, "heif_nclx_color_profile_free");
    resolve(heif.metadataIds, "heif_image_handle_get_list_of_metadata_block_IDs");
    resolve(heif.metadataSize, "heif_image_handle_get_metadata_size");
    resolve(heif.metadata, "heif_image_handle_get_metadata");
    resolve(heif.optionsAlloc, "heif_decoding_options_alloc");
    resolve(heif.optionsFree, "heif_decoding_options_free");
    resolve(heif.decodeImage, "heif_decode_image");
    resolve(heif.imageRelease, "heif_image_release");
    resolve(heif.imageWidth, "heif_image_get_width");
    resolve(heif.imageHeight, "heif_image_get_height");
    resolve(heif.imagePlane, "heif_image_get_plane_readonly");
    return isComplete ? std::optional(heif) : std::nullopt;
}

} // namespace

const HeifLibrary *HeifLibrary::instance()
{
    static const std::optional<HeifLibrary> library = loaded();
    return library ? &*library : nullptr;
}

} // namespace printdialog
