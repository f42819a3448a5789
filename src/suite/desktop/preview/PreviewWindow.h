#pragma once

#include "suite/desktop/preview/PageView.h"
#include "suite/paint/Painting.h"

#include <QDialog>

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QListView;
class QSpinBox;
class QTabWidget;
class QToolBar;

namespace suite::desktop {

class PageOutline;

// What a preview shows, and how it can be had again for a file.
struct PreviewContent {
    QString caption; // of the window
    paint::Document document;
    std::function<std::unique_ptr<paper::PageSource>()> pages; // anew at each call
    // As what it can be saved beside a document of its pages: by the ending with its point, whole or not at all.
    struct Other {
        QString ending;
        QString caption;
        std::function<void(const std::filesystem::path&)> write;
    };
    std::vector<Other> others;
};

// Pages before they are printed: read, sought, saved as a document, printed.
class PreviewWindow : public QDialog {
    Q_OBJECT

  public:
    PreviewWindow(const PreviewContent& content, QWidget* parent);
    ~PreviewWindow() override;

    // Shows a failure; the window stays.
    std::function<void(const std::exception&)> onFailure;
    // Shows the window until it is closed.
    void run();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void makeSide();
    void makeBar();
    QAction* add(const char* name, const QString& text, const QString& tip, const QKeySequence& keys,
                 const std::function<void()>& deed);
    void addPages();
    void addZoom();
    void addSearch();
    void showPage();
    void showZoom();
    void grown();
    void attempt(const std::function<void()>& deed);
    void save();
    void saveAs(const QString& file);
    void print();
    void write(const std::filesystem::path& file);
    void seek(bool forward);
    std::optional<TextPlace> nextHit(const std::string& wanted, bool forward) const;

    PreviewContent content_;
    PageStore store_;
    PageView* view_;
    QTabWidget* side_;
    QListView* thumbnails_ = nullptr;
    PageOutline* outline_ = nullptr;
    QToolBar* bar_;
    QSpinBox* number_ = nullptr;
    QLabel* count_ = nullptr;
    QComboBox* zoom_ = nullptr;
    QLineEdit* words_ = nullptr;
    QLabel* told_;
    bool failed_ = false; // and told
};

} // namespace suite::desktop
