// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QObject>

#include <memory>

namespace testing_support {

/// A test class of a program that holds several: `program CLASS [ARGUMENT...]` runs one, as QTEST_MAIN would.
/// Made by the macros below, at static initialization.
class TestClass
{
public:
    enum class Application { Core, Widgets };
    using Maker = std::unique_ptr<QObject> (*)();

    TestClass(const char *name, Application application, Maker maker) noexcept;
    Q_DISABLE_COPY_MOVE(TestClass)
    ~TestClass() = default;

    /// Null when no class has that name.
    static const TestClass *named(const char *name);
    static void printNames();
    /// The program's exit status; the class's own name is no longer among the arguments.
    int run(int argc, char *argv[]) const;

private:
    const char *name_;
    Application application_;
    Maker maker_;
    const TestClass *next_;
};

} // namespace testing_support

#define CORVEL_TEST_OF(Class, application)                                                                   \
    static const testing_support::TestClass registered##Class(                                               \
        #Class, testing_support::TestClass::Application::application,                                        \
        []() -> std::unique_ptr<QObject> { return std::make_unique<Class>(); });

/// In the place of QTEST_GUILESS_MAIN.
#define CORVEL_TEST(Class) CORVEL_TEST_OF(Class, Core)
/// In the place of QTEST_MAIN.
#define CORVEL_WIDGETS_TEST(Class) CORVEL_TEST_OF(Class, Widgets)
