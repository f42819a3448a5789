#pragma once

#include "host/Empresa.h"
#include "host/Formularios.h"
#include "host/Interacao.h"
#include "host/Servicos.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace apoio {

// A host that keeps what the module tells and answers from a queue.
class Interacao : public host::TInteracao {
  public:
    std::vector<std::string> mensagens;
    std::vector<std::string> relatorios;    // titles of those shown
    std::optional<base::TFalhaBanco> causa; // of the last message
    std::vector<std::string> falhas;        // in an open dialog
    std::vector<host::TEventoProgresso> progresso;
    bool cancelado = false;
    std::function<void(host::TFormZTTandorPadraoResult&)> aoMostrar;

    int Mensagem(const host::TMensagem& mensagem) override {
        mensagens.push_back(mensagem.Texto);
        causa = mensagem.Causa;
        return 6;
    }
    void Progresso(const host::TEventoProgresso& evento) override { progresso.push_back(evento); }
    bool ProgressoCancelado() override { return cancelado; }
    void MostrarModal(host::TFormZTTandorPadraoResult& form) override { aoMostrar(form); }
    bool Falha(const base::TFalha& falha) override {
        falhas.emplace_back(falha.what());
        return true;
    }
    void MostrarRelatorio(const host::TImpressao& impressao) override {
        relatorios.push_back(impressao.Relatorio.Definicao().Titulo);
    }
    void Focar(host::TControle& controle) override { foco = controle.Nome(); }
    void Pesquisar(host::TZTLookupEx& lookup) override {
        if (aoPesquisar)
            aoPesquisar(lookup);
    }
    void ProcessarMensagens() override {}
    std::function<void(host::TZTLookupEx&)> aoPesquisar;
    std::string foco;
};

} // namespace apoio
