#pragma once

#include "base/DataHora.h"
#include "base/Faixas.h"
#include "host/Assinatura.h"
#include "host/Exportar.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace host {

using base::TCor;

// Keys to which rules answer.
enum class TTecla { Enter, Baixo, F11, Esc };

// A control is a named holder of state that tells its listeners when it changes. Setting a state that it already has
// tells nobody and runs nothing. Widgets and scripts know a control by name and kind alone.
class HOST_API TControle {
  public:
    explicit TControle(std::string ANome) : FNome(std::move(ANome)) {}
    virtual ~TControle() = default;
    TControle(const TControle&) = delete;
    TControle& operator=(const TControle&) = delete;

    const std::string& Nome() const { return FNome; }
    bool Enabled() const { return FEnabled; }
    bool Visible() const { return FVisible; }
    void SetEnabled(bool AValor) { Mudar(FEnabled, AValor); }
    void SetVisible(bool AValor) { Mudar(FVisible, AValor); }
    const std::string& Hint() const { return FHint; } // what it does, for who lingers on it
    void SetHint(std::string ATexto) { Mudar(FHint, std::move(ATexto)); }
    const std::string& Caption() const { return FCaption; }
    void SetCaption(std::string ATexto) { Mudar(FCaption, std::move(ATexto)); }

    std::function<void()> OnExit; // the user leaves the control
    // A key in the control; true when the rule has consumed it.
    std::function<bool(TTecla)> OnKeyDown;
    bool PodeReceberFoco() const { return FEnabled && FVisible; }
    TAssinatura AoMudar(std::function<void()> AOuvinte) { return FOuvintes.Assinar(std::move(AOuvinte)); }

  protected:
    template <class T>
    bool Mudar(T& ACampo, T AValor) {
        if (ACampo == AValor)
            return false;
        ACampo = std::move(AValor);
        FOuvintes.Avisar();
        return true;
    }

  private:
    std::string FNome;
    std::string FCaption;
    std::string FHint;
    bool FEnabled = true;
    bool FVisible = true;
    TOuvintes FOuvintes;
};

// A button's or a menu entry's operation.
class HOST_API TAction : public TControle {
  public:
    TAction(std::string ANome, std::function<void()> AOnExecute)
        : TControle(std::move(ANome)), FOnExecute(std::move(AOnExecute)) {}
    void Execute() { FOnExecute(); }

  private:
    std::function<void()> FOnExecute;
};

class HOST_API TPanel : public TControle {
  public:
    using TControle::TControle;
};

class HOST_API TLabel : public TControle {
  public:
    using TControle::TControle;
};

// A label in a colour of its own. The same colour for font and background makes it a swatch.
class HOST_API TLabelColorido : public TLabel {
  public:
    TLabelColorido(std::string ANome, TCor AFonte, std::optional<TCor> AFundo = std::nullopt)
        : TLabel(std::move(ANome)), FFonte(AFonte), FFundo(AFundo) {}
    TCor Fonte() const { return FFonte; }
    std::optional<TCor> Fundo() const { return FFundo; }
    bool Amostra() const { return FFundo == FFonte; }

  private:
    TCor FFonte;
    std::optional<TCor> FFundo;
};

class HOST_API TZTCheckBox : public TControle {
  public:
    using TControle::TControle;
    bool Checked() const { return FChecked; }
    // Runs OnClick, inside the call, if the state changes.
    void SetChecked(bool AValor);
    std::function<void()> OnClick;

  private:
    bool FChecked = false;
};

// Items with a parallel list of values. Rules compare the value, never the item: OnChange runs when the value changes,
// once for each of the operations below.
class HOST_API TZTComboBox : public TControle {
  public:
    using TControle::TControle;
    // Replaces both lists and what is selected. Without a value that is the first item.
    void SetItens(std::vector<std::string> AItens, std::vector<std::string> AValores,
                  const std::optional<std::string>& AValor = std::nullopt);
    const std::vector<std::string>& Itens() const { return FLista.Itens; }
    const std::vector<std::string>& Valores() const { return FLista.Valores; }
    int ItemIndex() const { return FLista.Indice; } // -1 for none
    void SetItemIndex(int AIndice);
    // Empty where nothing is selected or the list of values does not reach.
    std::string GetValorSelecionado() const;
    // A value that is not in the list selects nothing.
    void SetValorSelecionado(const std::string& AValor);
    std::function<void()> OnChange;

  private:
    struct TLista {
        std::vector<std::string> Itens;
        std::vector<std::string> Valores;
        int Indice = -1;
        void Selecionar(int AIndice);
        void Selecionar(const std::string& AValor);
        bool operator==(const TLista&) const = default;
    };
    void SetLista(TLista ALista);

    TLista FLista;
};

// A date under a mask. The text is what was typed; the date is blank while the text is no date.
class HOST_API TZTDateEdit : public TControle {
  public:
    static constexpr const char* Mascara = "  /  /    ";

    using TControle::TControle;
    base::TDataHora Date() const { return FDate; }
    const std::string& Texto() const { return FTexto; }
    bool EmBranco() const { return FTexto == Mascara; }
    void SetDate(base::TDataHora AData);
    void SetTexto(std::string ATexto); // empty: the blank mask

  private:
    base::TDataHora FDate;
    std::string FTexto = Mascara;
};

} // namespace host
