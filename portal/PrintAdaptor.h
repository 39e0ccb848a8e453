// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrintPortal.h"

#include <QtCore/QVariantMap>
#include <QtDBus/QDBusAbstractAdaptor>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusUnixFileDescriptor>

namespace printdialog {

/// The portal's interface on the bus. The methods' results are sent later.
class PrintAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Print")
    Q_PROPERTY(uint version READ version CONSTANT)

public:
    explicit PrintAdaptor(PrintPortal *portal)
        : QDBusAbstractAdaptor(portal)
        , portal_(portal)
    {
    }

    uint version() const { return PrintPortal::version; }

public Q_SLOTS:
    // NOLINTBEGIN(readability-identifier-naming): the interface's names
    uint PreparePrint(const QDBusObjectPath &handle, const QString &program, const QString &parentWindow,
                      const QString &title, const QVariantMap &settings, const QVariantMap &pageSetup,
                      const QVariantMap &options, const QDBusMessage &message, QVariantMap & /*results*/)
    {
        portal_->preparePrint({handle.path(), program, parentWindow, title, options, message}, settings,
                              pageSetup);
        return 0;
    }

    uint Print(const QDBusObjectPath &handle, const QString &program, const QString &parentWindow,
               const QString &title, const QDBusUnixFileDescriptor &document, const QVariantMap &options,
               const QDBusMessage &message, QVariantMap & /*results*/)
    {
        portal_->print({handle.path(), program, parentWindow, title, options, message},
                       document.fileDescriptor());
        return 0;
    }
    // NOLINTEND(readability-identifier-naming)

private:
    PrintPortal *portal_;
};

} // namespace printdialog
