#include "base/Valor.h"

#include <charconv>

namespace base {

namespace {

struct TEscrever {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(const TDecimal& AValor) const { return AValor.Texto(); }
    std::string operator()(const TDataHora& AValor) const { return AValor.TextoIso(); }
    std::string operator()(const std::string& AValor) const { return AValor; }
    std::string operator()(double AValor) const {
        char LTexto[32];
        const auto LFim = std::to_chars(LTexto, LTexto + sizeof LTexto, AValor).ptr;
        return {LTexto, LFim};
    }
};

} // namespace

std::string TextoDe(const TValor& AValor) { return std::visit(TEscrever{}, AValor); }

} // namespace base
