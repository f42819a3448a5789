#pragma once

#include "demo/Gerador.h"
#include "suite/firebird/BulkInsert.h"

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace suite::firebird {
class Attachment;
class Transaction;
} // namespace suite::firebird

namespace demo {

// How far the making is. It tells whoever asked for it now and then, and not at every row.
class TAndamento {
  public:
    using TProgresso = std::function<void(const std::string& ATexto, std::size_t AFeito, std::size_t ATotal)>;

    explicit TAndamento(TProgresso AProgresso) : FProgresso(std::move(AProgresso)) {}
    void SetTotal(std::size_t ATotal) { FTotal = ATotal; }
    void SetTexto(std::string ATexto);
    void Avancar(std::size_t AQuantos = 1);

  private:
    void Avisar();

    TProgresso FProgresso;
    std::string FTexto;
    std::size_t FFeito = 0;
    std::size_t FTotal = 0;
    std::size_t FAvisado = 0;
};

// Rows on their way into one table.
class TCarga {
  public:
    TCarga(suite::firebird::Transaction& ATransacao, std::string ATabela, std::vector<std::string> AColunas)
        : FInclusao(ATransacao, std::move(ATabela), std::move(AColunas)) {}
    void Linha(std::initializer_list<base::TValor> AValores) { FInclusao.add({AValores.begin(), AValores.size()}); }
    void Terminar() { FInclusao.flush(); }

  private:
    suite::firebird::BulkInsert FInclusao;
};

inline base::TValor Dinheiro(TCentavos AValor) { return base::TDecimal{AValor, 2}; }
// A key, of which zero means none.
inline base::TValor ChaveOuNulo(std::int64_t AChave) { return AChave == 0 ? base::Nulo : base::Inteiro(AChave); }
inline base::TValor Texto(std::string_view ATexto) { return std::string(ATexto); }

} // namespace demo
