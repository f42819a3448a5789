#pragma once

#include "host/Registro.h"
#include "host/Servicos.h"
#include "suite/export/Exporter.h"
#include "suite/script/FormDriver.h"
#include "suite/script/JsonLines.h"
#include "suite/script/PrintedReport.h"
#include "suite/script/ScriptInteraction.h"
#include "suite/script/ScriptReader.h"

#include <exception>
#include <memory>
#include <string>
#include <vector>

namespace suite::script {

// Plays the user of a window from a script, and writes what happens as JSON Lines. While a dialog is open the steps act
// on it until it closes; a script that ends before leaves it by its "Sair".
class ScriptRunner {
  public:
    // Takes the place of the interaction among the current services for as long as it lives. Once cancelled answers
    // true, progress dialogs are cancelled and no further step begins.
    // The exporter outlives the runner.
    ScriptRunner(std::istream& script, std::ostream& out, host::TFabricaDeForm window, exporting::Output output,
                 std::function<bool()> cancelled = {});
    ScriptRunner(const ScriptRunner&) = delete;
    ScriptRunner& operator=(const ScriptRunner&) = delete;

    // Throws ScriptFailure for what is wrong with the script; a database failure that reaches the window passes.
    void run();
    // The first failure that was only told of: the steps behind it have run all the same.
    const std::exception_ptr& toldFailure() const { return interaction_.toldFailure(); }

  private:
    using Words = std::vector<std::string>;
    struct Verb {
        const char* name;
        std::size_t least; // words behind the name
        std::size_t most;
        bool ofWindow; // has no meaning while a dialog is open
        void (ScriptRunner::*run)(const Words&);
        const char* usage;
    };
    static const std::vector<Verb>& verbs();
    static std::string listOfVerbs();

    bool step(); // false at the end of the script
    void execute(const Step& step);
    void perform(const Verb& verb, const std::string& rest);
    void showModal(host::TFormZTTandorPadraoResult& form);
    void answerSearch(const host::TZTLookupEx& lookup);
    void take(const host::TImpressao& print);

    void open(const Words&);
    void select(const Words&);
    void updateActuals(const Words&);
    void define(const Words& words);
    void leave(const Words& words);
    void click(const Words& words);
    void press(const Words& words);
    void answer(const Words& words);
    void cancel(const Words& words);
    void print(const Words& words);
    void exportView(const Words& words);
    void showSubject(const Words& words);

    host::TForm& front() const { return *forms_.back(); }

    JsonLines out_;
    ScriptReader reader_;
    ScriptInteraction interaction_;
    host::TInstalacaoServicos installed_;
    host::TFabricaDeForm factory_;
    exporting::Output output_;
    std::unique_ptr<host::TFormZTTandorPadraoSelecao> window_;
    std::vector<host::TForm*> forms_; // the window and the dialogs open over it
    PrintedReport printed_;
    std::string printTo_;        // the file of the print under way; empty for none
    std::exception_ptr failure_; // of the step that ended the script
};

} // namespace suite::script
