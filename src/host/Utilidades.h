#pragma once

#include "base/DataHora.h"
#include "host/Exportar.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace host {

class TControle;
class TField;

class HOST_API TUtilGeral {
  public:
    // The date as a SQL literal, with its quotes or without.
    std::string FormataData(base::TDataHora AData, bool AComAspas) const;
    // The suite's standard format of a money value.
    void FormataCampoValor(TField& ACampo) const;
    void FormatarCampoNumerico(TField& ACampo, std::string AExibicao, std::string AEdicao) const;
    // "ANOS" with "INTEGRAL": completed years. "MESES" with "PARCIAL": month boundaries between the two dates, so 0
    // within one calendar month. No other pair is known: std::logic_error.
    int EspacoEntreDatas(base::TDataHora AInicio, base::TDataHora AFim, std::string_view AUnidade,
                         std::string_view AModo) const;
};

const inline TUtilGeral GUtilGeral;

struct HOST_API TZTUtilsDatas {
    static base::TDataHora BuscarUltimoDiaMes(base::TDataHora AData) { return AData.UltimoDiaDoMes(); }
};

struct HOST_API TZTUtilsValidacoes {
    // Whether the text is a date; shows the message when it is not.
    static bool ValidouData(std::string_view ATexto, const std::string& AMensagem);
};

struct HOST_API TZTUtilsControls {
    static void AtribuirFocoControle(TControle& AControle);
    // Whether no other control of the group, in its order, can take the focus behind this one.
    static bool EhUltimoControleAtivo(const TControle& AControle, std::initializer_list<const TControle*> AGrupo);
};

struct HOST_API TZTUtilsMatematica {
    // 1 for the first flag, 2 for the second, 4 for the third, added up.
    static int SomarCombinacaoBinaria(std::initializer_list<bool> AOpcoes);
    // Whether the sum contains that power of two.
    static bool EstahNaCombinacaoBinaria(int ASoma, int AOpcao) { return (ASoma & AOpcao) != 0; }
};

} // namespace host
