// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// A bundle's strings table.

#include "Bundle.h"
#include "Fuzzing.h"

#include <QtCore/QLocale>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QLocale::setDefault(QLocale(QStringLiteral("en_US"))); // whose table is looked for
    const QString path = fuzzing::writeBundle(QStringLiteral("Strings.bundle"));
    fuzzing::write(path + QLatin1String("/Contents/Resources/Localizable_en.qm"), fuzzing::input(data, size));
    const auto bundle = pdekit::Bundle::open(path);
    fuzzing::require(bundle.has_value(), "the bundle opens");
    for (const char *key : {"Red", "Color Adjustments", "Lamination", "", "a key that no table has"})
        fuzzing::require(!bundle->localizedString(QString::fromLatin1(key), QStringLiteral("value")).isNull(),
                         "there is a text for each key");
    return 0;
}
