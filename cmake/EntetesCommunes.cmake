# What nearly every file of a target includes, compiled once. Each list names what is slow to read, not what is handy: a
# file still includes what it uses.
set(VELORIN_ENTETES_STANDARD <algorithm> <cmath> <filesystem> <functional> <map> <memory> <optional> <span> <string>
                             <variant> <vector>)
set(VELORIN_ENTETES_FENETRES <QAction> <QApplication> <QBoxLayout> <QComboBox> <QGridLayout> <QGroupBox> <QHeaderView>
                             <QLabel> <QLineEdit> <QMainWindow> <QMdiArea> <QPainter> <QPushButton> <QTabWidget>
                             <QTableView> <QTimer> <QWidget>)

# velorin_entetes_communes(TARGET [FENETRES] [headers of its own])
function(velorin_entetes_communes CIBLE)
  cmake_parse_arguments(E "FENETRES" "" "" ${ARGN})
  set(ENTETES ${VELORIN_ENTETES_STANDARD} ${E_UNPARSED_ARGUMENTS})
  if(E_FENETRES)
    list(APPEND ENTETES ${VELORIN_ENTETES_FENETRES})
  endif()
  target_precompile_headers(${CIBLE} PRIVATE ${ENTETES})
endfunction()
