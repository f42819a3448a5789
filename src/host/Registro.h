#pragma once

#include "host/Exportar.h"
#include "host/Formularios.h"

#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <utility>

namespace host {

// The registry of classes that the program and its modules share. A module registers while it is loaded and
// unregisters while it is unloaded.
using TFabricaDeForm = std::function<std::unique_ptr<TFormZTTandorPadraoSelecao>()>;

HOST_API void RegisterClass(std::string_view AClasse, TFabricaDeForm AFabrica); // std::logic_error if it is there
HOST_API void UnRegisterClass(std::string_view AClasse);
// Empty when there is no such class.
HOST_API TFabricaDeForm FindClass(std::string_view AClasse);

// What a module says of itself. Each module exports one under the name "InformacoesDoPacote", as a C function that
// returns a pointer to it.
struct HOST_API TInformacoesPacote {
    std::string_view Nome;
    std::string_view Descricao;
    std::span<const std::pair<std::string_view, std::string_view>> RegistroDeVersao; // key, value
    std::span<const std::string_view> Unidades;
};
using TFuncaoInformacoesDoPacote = const TInformacoesPacote* (*)();

} // namespace host
