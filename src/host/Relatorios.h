#pragma once

#include "base/Faixas.h"
#include "host/Formularios.h"

#include <deque>

namespace host {

// Base of a report, made for one print: what stands in the head and at the foot of its pages. The ruler with which a
// report's rulers begin is that of its head.
class HOST_API TDMTandorRelPadrao : public TDMPadrao {
  public:
    static constexpr std::uint8_t ReguaDoCabecalho = 0;
    static constexpr std::uint8_t LinhasDoCabecalho = 3;

    // Runs the whole report. The frame's loads the company block; a report calls it when its head is set.
    virtual void Imprimir();

  protected:
    void SetIDFilialADetalhar(std::int64_t AIDFilial) { FIDFilialADetalhar = AIDFilial; }
    std::int64_t FIDFilialADetalhar = 0;           // 0: none
    std::int64_t FIDFilialCabecalho = 0;           // the establishment that the head names
    std::vector<std::string> FIDsFiliaisCabecalho; // several of them, in its place
    bool FTodasAsFiliais = false;                  // the report covers all of them
    base::TDataHora FInicioCabecalho;
    base::TDataHora FFimCabecalho;
    bool FMostrarEmpresa = true;
    bool FMostrarPeriodo = true;
    bool FMostrarEmissao = true; // date and time of the print
    bool FMostrarLivro = false;  // the book of the journal, for which there is no place in these reports

    // Of the head's ruler, and its elements in the first lines of a band; behind Imprimir.
    base::TRegua ReguaCabecalho() const;
    std::vector<base::TElementoFaixa> ElementosCabecalho(const std::string& ATitulo, bool APaisagem) const;
    base::TFaixa Rodape(bool APaisagem, bool AComFolha) const;

  private:
    std::string FEmpresa;
    std::string FEstabelecimentos;
    base::TDataHora FEmissao; // blank where nobody tells the time
};

// A report whose bands are made by a function, one flow at a time.
class HOST_API TRelatorioPronto final : public base::TRelatorio {
  public:
    using TFabrica = std::function<std::unique_ptr<base::TFluxoFaixas>()>;
    TRelatorioPronto(base::TDefinicaoRelatorio ADefinicao, TFabrica AFabrica)
        : FDefinicao(std::move(ADefinicao)), FFabrica(std::move(AFabrica)) {}
    const base::TDefinicaoRelatorio& Definicao() const override { return FDefinicao; }
    std::unique_ptr<base::TFluxoFaixas> Faixas() const override { return FFabrica(); }

  private:
    base::TDefinicaoRelatorio FDefinicao;
    TFabrica FFabrica;
};

// Bands of a dataset's rows, one row at a time, whatever row the dataset stands on.
class HOST_API TFluxoDeLinhas : public base::TFluxoFaixas {
  public:
    explicit TFluxoDeLinhas(const TDataSet& ADados) : FDados(ADados) {}
    bool Proxima(base::TFaixa& AFaixa) final;

  protected:
    virtual void AoIniciar() = 0;
    virtual void AoLer(std::size_t ALinha) = 0; // from 0
    virtual void AoTerminar() = 0;
    void Emitir(base::TFaixa AFaixa) { FProntas.push_back(std::move(AFaixa)); }

    const TDataSet& Dados() const { return FDados; }
    base::TValor Valor(std::string_view ACampo, std::size_t ALinha) const; // NULL for a field that there is not
    std::int64_t InteiroOuZero(std::string_view ACampo, std::size_t ALinha) const;
    base::TMoeda MoedaOuZero(std::string_view ACampo, std::size_t ALinha) const;
    // Whether a field is the same in both rows; NULL is equal to NULL alone.
    bool Igual(std::string_view ACampo, std::size_t ALinha, std::size_t AOutra) const;

  private:
    const TDataSet& FDados;
    std::deque<base::TFaixa> FProntas; // of the row read last
    std::size_t FProxima = 0;
    bool FIniciado = false;
    bool FTerminado = false;
};

// An element by its place; a value is shown by its format.
HOST_API base::TElementoFaixa ElementoTexto(std::string ANome, std::string ATexto, base::TLugar ALugar);
HOST_API base::TElementoFaixa ElementoValor(std::string ANome, base::TValor AValor, std::string AFormato,
                                            base::TLugar ALugar);
HOST_API base::TElementoFaixa ElementoFio(std::string ANome, base::TEspecieElemento AEspecie, base::TLugar ALugar);
HOST_API base::TElementoFaixa ElementoForma(std::string ANome, base::TCor AFundo, base::TLugar ALugar);

// The texts of a field that need most room: of a number its least and its greatest, of a text the longest, as far as
// that many characters.
HOST_API std::vector<std::string> AmostrasDoCampo(const TDataSet& ADados, std::string_view ACampo,
                                                  std::string_view AFormato, std::size_t AMaximo = 60);

} // namespace host
