#include "host/Registro.h"

#include <map>
#include <stdexcept>

namespace host {

namespace {

std::map<std::string, TFabricaDeForm, std::less<>>& Classes() {
    static std::map<std::string, TFabricaDeForm, std::less<>> LClasses;
    return LClasses;
}

} // namespace

void RegisterClass(std::string_view AClasse, TFabricaDeForm AFabrica) {
    if (!Classes().try_emplace(std::string(AClasse), std::move(AFabrica)).second)
        throw std::logic_error("class registered twice: " + std::string(AClasse));
}

void UnRegisterClass(std::string_view AClasse) {
    if (const auto LClasse = Classes().find(AClasse); LClasse != Classes().end())
        Classes().erase(LClasse);
}

TFabricaDeForm FindClass(std::string_view AClasse) {
    const auto LClasse = Classes().find(AClasse);
    return LClasse == Classes().end() ? TFabricaDeForm() : LClasse->second;
}

} // namespace host
