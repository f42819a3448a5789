#pragma once

#include <string>

class QMenu;
class QWidget;

namespace host {
class TZTDbGridDevLeiaute;
}

namespace suite::desktop {

// The layouts that a user has given names, chosen and kept by a menu. Failures are told.
class GridLayouts {
  public:
    // They outlive the object, as the window over which a name is asked for does.
    GridLayouts(host::TZTDbGridDevLeiaute& layouts, QWidget& window) : layouts_(layouts), window_(window) {}

    void fillMenu(QMenu& menu);
    void choose(const std::string& name); // "" is the original one
    void save(const std::string& name);
    void erase(const std::string& name);

  private:
    void askName();

    host::TZTDbGridDevLeiaute& layouts_;
    QWidget& window_;
};

} // namespace suite::desktop
