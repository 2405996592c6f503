#!/usr/bin/env bash
# The reference builds without a warning, which means that every exported function is documented.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_tools doxygen=doxygen
mkdir -p build/docs
doxygen docs/Doxyfile
echo "reference: build/docs/html/index.html"
