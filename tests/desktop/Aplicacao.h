#pragma once

#include <QApplication>

// The one application of a test program. It is never taken down: its windows may live as long as the process.
inline QApplication& aplicacao() {
    static int quantos = 1;
    static char nome[] = "testes_desktop";
    static char* argumentos[] = {nome, nullptr};
    static auto* const unica = new QApplication(quantos, argumentos);
    return *unica;
}
