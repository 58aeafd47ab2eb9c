#pragma once

#include "TestEnvironment.h"

// For all tests: it is what they are precompiled with.
#include <QtTest>
#include <QtWidgets>

#include <memory>

using TestFactory = std::unique_ptr<QObject> (*)();

/// Adds a class of tests to those that main() can run, which is given a name without "tst_". Returns true.
bool addTestClass(const char* name, TestFactory make);

template <typename Test>
std::unique_ptr<QObject> makeTest()
{
    return std::make_unique<Test>();
}

/// Adds a class to the program that its file is linked into. The file's last line includes "<this file>.moc".
#define UIC_TEST_MAIN(TestClass)                                                                             \
    [[maybe_unused]] static const bool isAdded_##TestClass = addTestClass(#TestClass, makeTest<TestClass>);
