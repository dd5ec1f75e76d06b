#include "pdfprotect.h"

pdfprotect::pdfprotect(QWidget *parent)
    : QDialog(parent)
{ }

pdfprotect::~pdfprotect() = default;
