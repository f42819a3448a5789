#pragma once

#include <QWidget>

#include <optional>
#include <vector>

class QCheckBox;
class QLabel;
class QPushButton;

namespace suite::desktop {

// Below a grid: how many lines it shows, and what leaves lines out.
class GridStatus : public QWidget {
    Q_OBJECT

  public:
    explicit GridStatus(QWidget* parent);

    bool withoutZeros() const;
    void setWithoutZeros(bool on);
    // Nothing for a grid without rows. By filters: some are left out besides those of zeros.
    void tell(std::optional<std::size_t> all, std::size_t shown, bool byFilters);
    std::vector<QWidget*> stops() const; // of the Tab key

  Q_SIGNALS:
    void zerosChanged();
    void clearAsked();

  private:
    QLabel* count_;
    QCheckBox* zeros_;
    QPushButton* clear_;
};

} // namespace suite::desktop
