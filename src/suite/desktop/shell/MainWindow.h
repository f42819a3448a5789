#pragma once

#include "suite/desktop/form/FormBinding.h"
#include "suite/desktop/shell/ResultExport.h"

#include <QMainWindow>

#include <memory>

class QAction;
class QActionGroup;
class QLabel;
class QMenu;
class QSplitter;
class QToolButton;

namespace suite::desktop {

class ChartPane;
class EmptyState;
class GridPane;

// What a window shows and does beside its form.
struct WindowServices {
    std::string company, establishment, user, database; // as the status line shows them
    std::string version;                                // for "Sobre"
    ExportFunction write;
    std::vector<ExportFormat> formats;
    std::function<void()> reconnect;                   // throws when it fails; absent: not offered
    std::function<void(bool)> confirmNextModal;        // whether the next dialog is confirmed as it stands
    std::function<double()> lastQuerySeconds;          // absent: not shown
    std::function<bool()> busy = [] { return false; }; // a call runs: the window must not close
};

// The module's window. It knows its parts by their names alone: actions, the two grids one over the other, their
// layouts and legends, the title. What the form says is in view is in view.
class MainWindow : public QMainWindow {
  public:
    // Why the window was left.
    enum class End { Closed, OtherDatabase };

    MainWindow(host::TFormZTTandorPadraoSelecao& form, WindowServices services);
    ~MainWindow() override;

    FormBinding& binding() { return *binding_; }
    GridPane* paneInView() const; // null for none
    // A failure that reached a window of the form.
    void fail(const std::exception& failure);
    // Shows the window until it is closed.
    End run();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    struct View {
        const char* grid;
        const char* layouts;
        const char* legend;
        std::vector<std::string> labels;
        GridPane* pane = nullptr;
    };

    QWidget* makeLegend(const View& view, QWidget* parent);
    void makeBody();
    // Beside the grid, hidden until it is shown.
    void setSidePane(QWidget* pane);
    void makeStatus();
    void makeActions();
    void makeToolBar();
    void makeMenus();
    void fillViewMenu();
    void addLookActions(QMenu& menu);
    QAction* addAction(const char* name, const QString& text, const QKeySequence& keys, std::function<void()> deed);
    QAction* formAction(const char* name, const char* otherwise, const char* absent);
    host::TAction* find(const char* name) const; // null for an action that the form does not have
    void select();
    void repeat();
    void refresh();
    void showRows();
    void showKeys();
    void showAbout();

    host::TFormZTTandorPadraoSelecao& form_;
    WindowServices services_;
    std::vector<host::TAssinatura> dataChanges_;
    std::unique_ptr<FormBinding> binding_;
    std::vector<View> views_;
    QSplitter* splitter_ = nullptr;
    EmptyState* empty_ = nullptr;
    ChartPane* chart_ = nullptr;
    ResultExport* export_ = nullptr;
    QAction *select_ = nullptr, *repeat_ = nullptr, *actual_ = nullptr, *lastUpdate_ = nullptr, *print_ = nullptr,
            *printGrid_ = nullptr, *printReport_ = nullptr, *exportButton_ = nullptr, *side_ = nullptr;
    QMenu* view_ = nullptr;
    QActionGroup* looks_ = nullptr;
    QLabel *rows_ = nullptr, *time_ = nullptr;
    bool selected_ = false; // at least one selection has been made
    End end_ = End::Closed;
    std::function<void()> closed_;
};

} // namespace suite::desktop
