#pragma once

#include "host/Controles.h"
#include "host/DataSet.h"
#include "host/Exportar.h"

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace host {

class TGrade;

// Binds a grid to a dataset under a name.
class HOST_API TDataSource {
  public:
    explicit TDataSource(std::string ANome) : FNome(std::move(ANome)) {}
    const std::string& Nome() const { return FNome; }
    TDataSet* DataSet = nullptr; // not owned

  private:
    std::string FNome;
};

// Base of every form: its controls, actions and data sources by name, and what its frame does for all. A form is a
// model; whoever shows it sets states and calls its operations, and no rule stands anywhere else.
class HOST_API TForm {
  public:
    TForm(std::string ANome, std::string ATitulo) : FNome(std::move(ANome)), FTitulo(std::move(ATitulo)) {}
    virtual ~TForm() = default;
    TForm(const TForm&) = delete;
    TForm& operator=(const TForm&) = delete;

    const std::string& Nome() const { return FNome; }
    const std::string& Titulo() const { return FTitulo; }
    const std::vector<TControle*>& Controles() const { return FControles; } // in the order of the form
    const std::vector<TDataSource*>& Fontes() const { return FFontes; }

    // Throw TFalha, which lists what there is, for an unknown name.
    TControle& Controle(std::string_view ANome) const;
    TAction& Acao(std::string_view ANome) const;
    TDataSet& DataSet(std::string_view ANome) const; // by the dataset's own name, through the data sources

    // What the user does, all of it through here. An Abort of a rule ends here, its message having been shown; other
    // failures pass, but for those in a modal form (TInteracao::MostrarModal). False when it did not come to its end.
    virtual bool Realizar(const std::function<void()>& AAto);
    // Leaving validates the control and then runs its exit event; false when a rule has refused it or failed.
    bool SairDe(TControle& AControle);
    void Executar(TAction& AAcao);
    // A key in a control: the control's rule first, then, unless that consumed it, the form's. True when one of them
    // has consumed it.
    bool Teclar(TControle& AControle, TTecla ATecla);

    virtual void InitializeForm() {}
    // With a control: what leaving it requires. With none: everything, for the commit.
    virtual void ValidarCampos(TControle* /*ASender*/) {}
    virtual void Imprimir() {}
    virtual bool FormKeyDown(TTecla /*ATecla*/) { return false; } // true when consumed

  protected:
    // Members of the form, registered by its constructor in the order of the form.
    void Registrar(std::initializer_list<TControle*> AControles);
    void Registrar(std::initializer_list<TDataSource*> AFontes);

  private:
    std::string FNome;
    std::string FTitulo;
    std::vector<TControle*> FControles;
    std::vector<TDataSource*> FFontes;
};

struct TCampoDescrito;

// What a field of a data module holds: a value or NULL, a mark, a list, or a record. An enumeration is its name, and
// what counts as not set (a blank date, an absent list) is NULL.
using TConteudoDescrito = std::variant<base::TValor, bool, std::vector<std::string>, std::vector<TCampoDescrito>>;

struct HOST_API TCampoDescrito {
    std::string Nome;
    TConteudoDescrito Conteudo;
};

// Base of a data module. It tells what it holds by name, for those who show it without knowing its class.
class HOST_API TDMPadrao {
  public:
    TDMPadrao() = default;
    virtual ~TDMPadrao() = default;
    TDMPadrao(const TDMPadrao&) = delete;
    TDMPadrao& operator=(const TDMPadrao&) = delete;

    virtual std::vector<TCampoDescrito> DescreverCampos() const { return {}; } // in order of declaration
    virtual std::vector<const TZTClientDataSet*> DataSets() const { return {}; }
};

// Base of the query modules: their SQL datasets are on the suite's connection once created.
class HOST_API TDmZTTandorPadrao : public TDMPadrao {
  protected:
    void Conectar(std::initializer_list<TZTSQLDataSet*> ADataSets);
};

// One thing that a result was asked for: "Período", "01/01/2024 a 31/01/2024".
struct HOST_API TCriterio {
    std::string Nome;
    std::string Valor;
};

// Base of a window: the action "Selecionar", those of the print menu, and the slot of the data module.
class HOST_API TFormZTTandorPadraoSelecao : public TForm {
  public:
    TFormZTTandorPadraoSelecao(std::string ANome, std::string ATitulo);
    virtual void ActSelecionarExecute(TControle* /*ASender*/) {}
    // The print button: its menu is the face's, and without one it prints the report.
    virtual void ActImprimirExecute() { ActImprimirRelatorioExecute(); }
    virtual void ActImprimirRelatorioExecute() { Imprimir(); }
    virtual void ActImprimirGradeExecute() {}
    // The grid whose rows are in view, null for none.
    virtual TGrade* GradeEmVista() { return nullptr; }
    // What the result in view was asked for, as every output of it says; the first is its title. None without a result.
    virtual std::vector<TCriterio> Criterios() const { return {}; }
    // What the last update of a dialog of this window did, line by line; empty: nothing yet.
    virtual std::string DescreverUltimaAtualizacao() const { return {}; }
    const TDMPadrao* DataModule() const { return FDataModule.get(); } // null before InitializeForm

  protected:
    std::unique_ptr<TDMPadrao> FDataModule;
    TAction ActSelecionar;
    TAction ActImprimir;
    TAction ActImprimirRelatorio;
    TAction ActImprimirGrade;
};

// Base of a modal dialog with "OK" and "Sair".
class HOST_API TFormZTTandorPadraoResult : public TForm {
  public:
    static constexpr int ResultadoSair = 2;

    TFormZTTandorPadraoResult(std::string ANome, std::string ATitulo);
    // Returns the ModalResult with which the dialog was closed; throws the failure behind which its rules closed it.
    int ShowModal();
    bool Realizar(const std::function<void()>& AAto) override;
    bool Aberto() const { return FAberto; }
    int ModalResult() const { return FModalResult; } // 0 while it is open

    virtual void FormShow() {}
    bool FormKeyDown(TTecla ATecla) override; // Esc leaves by ActSair
    virtual void ActOKExecute(TControle* ASender) = 0;
    virtual void ActSairExecute() { Fechar(ResultadoSair); }

  protected:
    void Fechar(int AResultado);

    TAction ActOK;
    TAction ActSair;

  private:
    bool FModal = false; // within ShowModal
    bool FAberto = false;
    int FModalResult = 0;
    std::exception_ptr FFalha; // behind which the form was closed
};

// Base of a calculation dialog: it stays open behind an action, which first validates all fields.
class HOST_API TFormZTTandorPadraoCalculos : public TFormZTTandorPadraoResult {
  public:
    TFormZTTandorPadraoCalculos(std::string ANome, std::string ATitulo);
    void ActOKExecute(TControle* ASender) override { ActExecutarExecute(ASender); }
    virtual void ActExecutarExecute(TControle* /*ASender*/) { ValidarCampos(nullptr); }
    virtual void ActExcluirExecute(TControle* /*ASender*/) { ValidarCampos(nullptr); }

  protected:
    TAction ActExecutar;
    TAction ActExcluir;
};

} // namespace host
