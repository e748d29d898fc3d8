#!/usr/bin/env bash
# A page of graphs drawn through the graph dialog, each inserted as one group
# at its caret: the three carets are blanks of three widths on one line.
set -euo pipefail
config="$(mktemp -u).db"
trap 'rm -f "$config"' EXIT
graph() { "$LP" functiongraph --doc "$DOC" --config "$config" "$@" --click cmdOK --click cmdCancel; }
# A circle with its centre, an ellipse and a hyperbola with foci and asymptotes,
# a parabola with focus and directrix.
graph --select $'\u2003' --set txtLenOfAxis_x=16 --set txtLenOfAxis_y=16 \
  --set optType_Y_1=1 --set txtY_0=-4 --set txtY_1=4 --set txtY_2=2 --set chkCentreOfCircle=1 \
  --click cmdOK_Y --set optType_TY_0=1 --set txtTY_0=16 --set txtTY_1=9 --set chkFocus_TY=1 \
  --click cmdOK_TY --set optType_SQX_0=1 --set txtSQX_0=4 --set txtSQX_1=5 --set txtXmin_SQX=-6 \
  --set txtXmax_SQX=6 --set chkFocus_SQX=1 --set chkJJX_SQX=1 --click cmdOK_SQX \
  --set optType_PWX_3=1 --set txtPWX_0=2 --set chkFocus_PWX=1 --set chkDirectrix_PWX=1 \
  --click cmdOK_PWX
# A line through two points, and a point with its projections on the axes.
graph --select $'\u2009' --set chkDrawScale=1 --set optType_ZX_2=1 --set "txtZX_0=(-3,-2)" \
  --set "txtZX_1=(1,2)" --set txtXmin_ZX=-4 --set txtXmax_ZX=3 --click cmdOK_ZX_0 \
  --set "txtPoint=(2,3)" --set txtPointName=A --click cmdDrawPoint
# y = sin x over one period by the five-point method.
graph --select $'\u2002' --set txtLenOfAxis_x=8 --set HScrollx=-3 --set txtLenOfAxis_y=4 \
  --set optFW_0=1 --set optFS_2=1 --set txtXmin_SJ=1 --set txtXmax_SJ=0 --click cmdOK_sin
