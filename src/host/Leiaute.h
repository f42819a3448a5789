#pragma once

#include "host/Exportar.h"
#include "host/Grade.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace host {

// One column of a layout; its place in the grid is its place in the list.
struct HOST_API TColunaLeiaute {
    std::string Campo;
    bool Visivel = true;
    int Grupo = -1; // as in TColunaGrade

    friend bool operator==(const TColunaLeiaute&, const TColunaLeiaute&) = default;
};

struct HOST_API TLeiaute {
    static constexpr int VersaoAtual = 1;
    int Versao = VersaoAtual;
    std::vector<TColunaLeiaute> Colunas;

    friend bool operator==(const TLeiaute&, const TLeiaute&) = default;
};

// Whose layouts: a grid by its fixed key, and a user.
struct HOST_API TDonoLeiautes {
    std::string ChaveLeiaute;
    std::int64_t IDUsuario = 0;
};

// Where layouts are kept. All operations throw TFalha when they cannot be done.
class HOST_API TArmazemLeiautes {
  public:
    virtual ~TArmazemLeiautes() = default;
    virtual std::vector<std::string> Listar(const TDonoLeiautes& ADono) const = 0; // names, sorted
    // A layout that is damaged or of a version that is not known fails too, and stays as it is.
    virtual TLeiaute Ler(const TDonoLeiautes& ADono, const std::string& ANome) const = 0;
    // Replaces one of that name, whole or not at all.
    virtual void Gravar(const TDonoLeiautes& ADono, const std::string& ANome, const TLeiaute& ALeiaute) = 0;
    virtual void Excluir(const TDonoLeiautes& ADono, const std::string& ANome) = 0;
};

// The layouts of one grid: the default one, which is the grid as it was designed and has no name, and those that the
// user has named. Without the service there is only the default. Tells its listeners when list or choice change.
class HOST_API TZTDbGridDevLeiaute : public TControle {
  public:
    TZTDbGridDevLeiaute(std::string ANome, std::string AChaveLeiaute)
        : TControle(std::move(ANome)), FChaveLeiaute(std::move(AChaveLeiaute)) {}

    const std::string& ChaveLeiaute() const { return FChaveLeiaute; }
    std::function<std::int64_t()> IDUsuario; // asked at each use
    // Before a chosen layout reaches the grid: the owner's last word on the columns.
    std::function<void(bool APadrao, std::vector<TColunaGrade>& AColunas)> SelecaoLeiaute;

    // Reads the names. A failure is shown, and the list is then empty.
    void CarregarListaDeLeiautes();
    // Takes the columns of the grid as its design and chooses the default layout. The grid must outlive the layouts.
    void SetVisaoGradeLeiaute(TGrade& AGrade);
    TGrade* Grade() const { return FGrade; } // null before

    const std::vector<std::string>& Leiautes() const { return FLeiautes; }
    const std::string& Escolhido() const { return FEscolhido; } // empty: the default
    // Columns that the layout does not know come last, as designed; those that the grid does not have are passed over.
    // A layout that cannot be read is told to the user, and the grid stays as it is.
    void Escolher(const std::string& ANome);
    // Keeps the grid as it stands under that name, and chooses it. Throws TFalha without a name.
    void Salvar(const std::string& ANome);
    // Of the chosen one: the default takes its place.
    void Excluir(const std::string& ANome);

  private:
    TDonoLeiautes Dono() const;
    void Aplicar(const TLeiaute* ALeiaute);

    std::string FChaveLeiaute;
    TGrade* FGrade = nullptr;
    TLeiaute FPadrao;
    std::vector<std::string> FLeiautes;
    std::string FEscolhido;
};

} // namespace host
