#pragma once

#include "apoio/Bases.h"
#include "apoio/Hospedeiro.h"
#include "desktop/Aplicacao.h"
#include "selection/Un04618FormSelecao.h"
#include "suite/desktop/form/DialogWindow.h"
#include "suite/desktop/form/LookupWindow.h"
#include "suite/program/Login.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include <deque>

// The selection dialog on screen, on a copy of the demo database, company 1, which heads the holding. What the user
// does is queued as steps: each runs when the window in view waits for him.
class SelecaoNaTela {
  public:
    SelecaoNaTela() {
        aplicacao();
        QApplication::setKeyboardInputInterval(1); // what is typed in a list meanwhile is one search
        principal = std::make_unique<QWidget>();
        servicos.Conexao = conexao.get();
        servicos.Interacao = &interacao;
        {
            const host::TInstalacaoServicos paraLogin(servicos);
            login = std::make_unique<suite::program::Login>(suite::program::LoginRequest{1, {}, {}, {}});
        }
        servicos.EmpresaLogada = login.get();
        servicos.Contabil = login.get();
        servicos.Sistema = login.get();
        instalados = std::make_unique<host::TInstalacaoServicos>(servicos);
        dm = std::make_unique<pct04618::TDM04618>();
        dm->FIDEmpresa = login->GetIDEmpresa();
        dm->CarregarFiliais();
        form = std::make_unique<pct04618::TForm04618Selecao>(*dm);
        janela = std::make_unique<suite::desktop::DialogWindow>(*form, principal.get());
        principal->show();
        janela->binding().onFailure = [this](const std::exception& falha) {
            interacao.falhas.emplace_back(falha.what());
        };
        interacao.janela = janela.get();
    }

    struct Interacao : apoio::Interacao {
        suite::desktop::DialogWindow* janela = nullptr;
        std::function<void()> aoMostrarMensagem;
        int Mensagem(const host::TMensagem& mensagem) override {
            const int resposta = apoio::Interacao::Mensagem(mensagem);
            if (aoMostrarMensagem)
                aoMostrarMensagem();
            return resposta;
        }
        void MostrarModal(host::TFormZTTandorPadraoResult&) override { janela->run(); }
        void Focar(host::TControle& controle) override {
            foco = controle.Nome();
            janela->binding().focus(controle);
        }
        void Pesquisar(host::TZTLookupEx& lookup) override { suite::desktop::searchIn(lookup, janela); }
    };

    // Shows the dialog and lets the steps happen, also within the windows that a step opens; a dialog that is then
    // still open is closed by its window.
    void mostrar(std::deque<std::function<void()>> passos) {
        QTest::qWait(5); // what the showing before has left, its typing too
        QObject enquantoAberta;
        QElapsedTimer relogio;
        relogio.start();
        std::vector<const QWidget*> emCurso; // the windows in which steps are at work
        const std::function<void()> proximo = [&] {
            QTimer::singleShot(0, &enquantoAberta, proximo);
            auto* emVista = QApplication::activeModalWidget();
            const auto* foco = QApplication::focusWidget();
            const bool ativa = foco && foco->window() == emVista; // which a new window is by an event yet to come
            const bool ocupada = !emCurso.empty() && emCurso.back() == emVista;
            const bool esgotado = relogio.elapsed() > 10000;
            if (!esgotado && (ocupada || (!ativa && !passos.empty())))
                return;
            if (passos.empty() || esgotado) {
                (emVista ? emVista : janela.get())->close();
                return;
            }
            const auto passo = std::move(passos.front());
            passos.pop_front();
            emCurso.push_back(emVista);
            passo();
            emCurso.pop_back();
        };
        QTimer::singleShot(0, &enquantoAberta, proximo);
        form->ShowModal();
        EXPECT_TRUE(passos.empty()) << passos.size() << " steps found the dialog closed";
    }

    template <class TWidget>
    TWidget& widget(const char* nome) {
        auto* achado = qobject_cast<TWidget*>(janela->binding().widget(nome));
        if (!achado)
            throw std::runtime_error(std::string(nome) + " is of another kind");
        return *achado;
    }
    // The control in which the keys arrive.
    std::string foco() const {
        const QWidget* onde = QApplication::focusWidget();
        for (; onde; onde = onde->parentWidget())
            for (const auto* controle : form->Controles())
                if (onde->objectName().toStdString() == controle->Nome())
                    return controle->Nome();
        return {};
    }
    static void teclar(Qt::Key tecla, Qt::KeyboardModifiers com = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), tecla, com);
    }
    static void digitar(const char* texto) { QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(texto)); }

    apoio::Copia copia{apoio::Base::Demo};
    Interacao interacao;
    std::unique_ptr<suite::firebird::Connection> conexao = copia.conectar();
    host::TServicos servicos;
    std::unique_ptr<suite::program::Login> login;
    std::unique_ptr<host::TInstalacaoServicos> instalados;
    std::unique_ptr<pct04618::TDM04618> dm;
    std::unique_ptr<pct04618::TForm04618Selecao> form;
    std::unique_ptr<QWidget> principal;
    std::unique_ptr<suite::desktop::DialogWindow> janela;
};
