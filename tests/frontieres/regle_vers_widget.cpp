// A rule knows no widget, not even Qt's.
#include <QWidget>
