#include "consultation/Un04618Form.h"
#include "host/Registro.h"

#include <array>

namespace pct04618 {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 1> RegistroDeVersao{
    {{"MinVersionDatabase", "5.40"}}};
constexpr std::array<std::string_view, 10> Unidades{"Un04618Types",
                                                    "Un04618Const",
                                                    "Un04618Dm",
                                                    "Un04618FormSelecao",
                                                    "Un04618FormAtualizarRealizado",
                                                    "Un04618DMRel",
                                                    "Un04618DMRelPeriodos",
                                                    "Un04618DMRelMatricial",
                                                    "Un04618DMRelRazaoTot",
                                                    "Un04618Form"};
constexpr host::TInformacoesPacote Informacoes{"Pct04618", "Consultas e relatórios Orçamento x Realizado",
                                               RegistroDeVersao, Unidades};

// Loading the module runs its constructor, unloading it its destructor.
const struct TRegistroDaClasse {
    TRegistroDaClasse() {
        host::RegisterClass("TForm04618", [] { return std::make_unique<TForm04618>(); });
    }
    ~TRegistroDaClasse() { host::UnRegisterClass("TForm04618"); }
} GRegistroDaClasse;

} // namespace

extern "C" HOST_API const host::TInformacoesPacote* InformacoesDoPacote() { return &Informacoes; }

} // namespace pct04618
