// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <cstddef>
#include <cstdint>

/// The fuzzer's entry: one input, in bytes. Always 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/// What the fuzzers share. Each process has an application without a display, its own home folder, no
/// print server, and a dialog that neither beeps nor asks; libFuzzer's own main() sets it up.
namespace fuzzing {

/// The input, shared and not copied: it must not outlive the run.
QByteArray input(const std::uint8_t *data, std::size_t size);

/// The folder that is this process's alone.
QString folder();

/// Writes the file, with its folders; nobody else may read it. Answers its path.
QString write(const QString &path, const QByteArray &content);

/// Writes Contents/Info.json of a bundle in the folder. Answers the bundle's path.
QString writeBundle(const QString &name);

/// Ends the run as a finding when the claim is wrong.
void require(bool claim, const char *what);

} // namespace fuzzing
