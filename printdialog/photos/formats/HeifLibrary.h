// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <libheif/heif.h>

namespace printdialog {

/// The functions of libheif that are used. The library is loaded for the first photo that needs it, and stays
/// loaded. So it need not be installed, and its codecs are not loaded for other photos. Without it, only HEIF
/// and AVIF cannot be read.
struct HeifLibrary
{
    /// The library, or null when it is not installed. May be called on any thread.
    static const HeifLibrary *instance();

    decltype(&heif_context_alloc) contextAlloc;
    decltype(&heif_context_free) contextFree;
    decltype(&heif_context_set_maximum_image_size_limit) setMaximumImageSize;
    decltype(&heif_context_read_from_memory_without_copy) readFromMemory;
    decltype(&heif_context_get_primary_image_handle) primaryImageHandle;
    decltype(&heif_image_handle_release) handleRelease;
    decltype(&heif_image_handle_get_width) handleWidth;
    decltype(&heif_image_handle_get_height) handleHeight;
    decltype(&heif_image_handle_has_alpha_channel) handleHasAlpha;
    decltype(&heif_image_handle_get_color_profile_type) profileType;
    decltype(&heif_image_handle_get_raw_color_profile_size) rawProfileSize;
    decltype(&heif_image_handle_get_raw_color_profile) rawProfile;
    decltype(&heif_image_handle_get_nclx_color_profile) nclxProfile;
    decltype(&heif_nclx_color_profile_free) nclxProfileFree;
    decltype(&heif_image_handle_get_list_of_metadata_block_IDs) metadataIds;
    decltype(&heif_image_handle_get_metadata_size) metadataSize;
    decltype(&heif_image_handle_get_metadata) metadata;
    decltype(&heif_decoding_options_alloc) optionsAlloc;
    decltype(&heif_decoding_options_free) optionsFree;
    decltype(&heif_decode_image) decodeImage;
    decltype(&heif_image_release) imageRelease;
    decltype(&heif_image_get_width) imageWidth;
    decltype(&heif_image_get_height) imageHeight;
    decltype(&heif_image_get_plane_readonly) imagePlane;
};

} // namespace printdialog
