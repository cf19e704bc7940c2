#pragma once

#include <QObject>
#include <QTest>

#include <functional>
#include <memory>
#include <vector>

// Test classes of one executable. PRUEBA(Class) in a source file adds the class to the list that principal.cpp runs;
// HOME, settings and today's date are temporary by construction, and any warning that Qt prints fails the test.
namespace prueba {
using Fabrica = std::function<std::unique_ptr<QObject>()>;
std::vector<Fabrica>& Lista();
struct Alta {
    explicit Alta(Fabrica f) { Lista().push_back(std::move(f)); }
};
// Warnings whose text contains this are expected until the end of the current test function.
void EsperarAviso(const char* trozo);
} // namespace prueba

#define PRUEBA(Clase)                                                                                        \
    static const prueba::Alta alta_##Clase([] { return std::unique_ptr<QObject>(new Clase); });
