// The widgets of a form follow its controls, and what the user does reaches them.
#include "desktop/Aplicacao.h"
#include "suite/desktop/form/FormBinding.h"

#include <gtest/gtest.h>

#include <QWidget>

namespace {

class UmFormulario : public host::TForm {
  public:
    UmFormulario() : TForm("UmFormulario", "Um") { Registrar({&Rotulo}); }
    host::TLabel Rotulo{"Rotulo"};
};

TEST(Vinculo, UmaVezCadaNome) {
    aplicacao();
    UmFormulario formulario;
    QWidget janela;
    suite::desktop::FormBinding vinculo(formulario, janela);
    EXPECT_EQ(vinculo.unbound(), std::vector<std::string>{"Rotulo"});
    EXPECT_EQ(vinculo.widget("Rotulo"), vinculo.widget("Rotulo"));
    EXPECT_TRUE(vinculo.unbound().empty());
}

} // namespace
