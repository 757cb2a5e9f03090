#!/usr/bin/env bash
# Draws the skin's bitmaps from the shapes in assets/: skin-art.sh folder
#
# A shape is drawn 16 times its size and averaged down, which gives smooth edges where it crosses a
# pixel and none where it lies on the pixel grid.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
assets=$root/assets
out=$1
scale=16

magick=$(find_magick)

declare -A palette=([none]=none)
while read -r name colour; do
  [[ $name == \#* || -z $name ]] || palette[$name]=$colour
done <"$assets/palette.txt"

# bitmap name cell-size: starts a bitmap. Cells follow from the left; `row` starts the next row.
bitmap() {
  file=$out/$1
  cell_size=$2
  rows=()
  cells=()
  drawing=
}

# cell paper [paper-below]: starts a cell, filled with one colour or a vertical fade of two.
cell() {
  end_cell
  paper=$1
  fill=gradient:${palette[$1]}-${palette[${2:-$1}]}
  drawing="translate -0.5,-0.5 scale $scale,$scale"
}

end_cell() {
  [ -n "$drawing" ] || return 0
  local width=${cell_size%x*} height=${cell_size#*x}
  cells+=('(' -size "$((width * scale))x$((height * scale))" "$fill"
    -draw "$drawing" -scale "$cell_size!" ')')
  drawing=
}

row() {
  end_cell
  rows+=('(' "${cells[@]}" +append ')')
  cells=()
}

# shape name [at=x,y] [turn=degrees] [role=value ...]: draws a shape into the current cell. A value
# is a name of the palette or stands for itself.
shape() {
  local name=$1 at=0,0 turn=0 text argument value
  shift
  text=$(<"$assets/shapes/$name.mvg")
  for argument in "$@" "paper=$paper"; do
    value=${argument#*=}
    case $argument in
      at=*) at=$value ;;
      turn=*) turn=$value ;;
      *) text=${text//"{${argument%%=*}}"/${palette[$value]:-$value}} ;;
    esac
  done
  if [[ $text == *[{}]* ]]; then
    echo "skin-art: $name lacks a role" >&2
    return 1
  fi
  drawing+=" push graphic-context translate $at rotate $turn
$text
pop graphic-context"
}

save() {
  row
  mkdir -p "$(dirname "$file")"
  "$magick" +antialias "${rows[@]}" -append -type TrueColor -depth 8 "BMP3:$file"
}

draw_check() {
  bitmap ctrl/Check.bmp 16x16
  cell sheet; shape check-box face=sheet     frame=outline  tick=none
  cell sheet; shape check-box face=sheet     frame=accent   tick=none
  # Pressed, an empty box shows the tick to come. A list with check boxes takes this cell for a
  # checked row, so it must read as one.
  cell sheet; shape check-box face=selection frame=accent   tick=accent
  cell sheet; shape check-box face=field     frame=disabled tick=none
  cell sheet; shape check-box face=pressed   frame=pressed  tick=sheet
  cell sheet; shape check-box face=accent    frame=accent   tick=sheet
  cell sheet; shape check-box face=hover     frame=hover    tick=sheet
  cell sheet; shape check-box face=disabled  frame=disabled tick=sheet
  save
}

# The controls stretch the next two strips to their own height. Shrinking would mix rows to foreign
# colours, so the cells are as high as a low control needs; the arrows are solid and lie where a
# stretch by one or two rows leaves them whole or doubles a single row.
draw_combo_arrow() {
  local arrow=(arrow at=11.5,9 reach=4 depth=4.25)
  bitmap ctrl/ComboBoxArrow.bmp 24x22
  cell field; shape "${arrow[@]}" ink=label
  cell field; shape plate box=2,2,21,20 face=selection; shape "${arrow[@]}" ink=accent
  save
}

draw_spin() {
  local arrow=(arrow reach=3 depth=3.25)
  local up=("${arrow[@]}" at=12.5,10 turn=180) down=("${arrow[@]}" at=12.5,1)
  bitmap ctrl/Spin.bmp 24x11
  cell field; shape "${up[@]}" ink=label
  cell field; shape plate box=3,1,22,11 face=selection; shape "${up[@]}" ink=accent
  row
  cell field; shape "${down[@]}" ink=label
  cell field; shape plate box=3,0,22,10 face=selection; shape "${down[@]}" ink=accent
  save
}

draw_list_items() {
  local images=(public plain plain plain plain plain plain plain options futures stock other indicator)
  local image
  bitmap ctrl/ListBoxItem.bmp 20x20
  for image in "${images[@]}"; do
    cell sheet; shape "$image" ink=label tint=label-tint
  done
  row
  for image in "${images[@]}"; do
    cell selection; shape "$image" ink=accent tint=accent-tint
  done
  save
}

# The first quarter stands in the grid of the keyboard page; its ground is transparent there.
draw_cell_arrow() {
  local arrow=(arrow reach=4 depth=4.25)
  bitmap "$1/Trade/kbo.bmp" 14x14
  cell key; shape "${arrow[@]}" at=6.5,5 ink=arrow
  cell key; shape "${arrow[@]}" at=6.5,5 ink=accent
  cell key; shape "${arrow[@]}" at=6.5,6 ink=pressed
  cell key; shape "${arrow[@]}" at=6.5,5 ink=disabled
  save
}

flat_button() {
  bitmap "$1" 64x24
  local face
  for face in "${@:2}"; do
    cell surround; shape button face="$face" frame="$face"
  done
  save
}

draw_blue_skin() {
  draw_cell_arrow 蓝色空间
  flat_button 蓝色空间/Trade/6.bmp confirm confirm-hover confirm-pressed disabled
  flat_button 蓝色空间/Trade/7.bmp cancel cancel-hover cancel-pressed disabled
  bitmap 蓝色空间/Trade/p11.bmp 64x28
  cell sheet field; shape panel line=line bar=accent
  save
}

dark_button() {
  bitmap "$1" 64x24
  cell dark-top       dark-bottom;       shape frame frame="$2"
  cell dark-hover-top dark-hover-bottom; shape frame frame="$2"
  cell dark-press-top dark-press-bottom; shape frame frame="$2"
  cell dark-off;                         shape frame frame=dark-top
  save
}

draw_black_skin() {
  draw_cell_arrow 经典黑色
  dark_button 经典黑色/Trade/6.bmp confirm-pressed
  dark_button 经典黑色/Trade/7.bmp dark-edge
  bitmap 经典黑色/Trade/p11.bmp 64x28
  cell dark-top dark-bottom; shape panel line=dark-edge bar=accent
  save
}

mkdir -p "$out/ctrl"
cp "$assets/Ctrl.ini" "$out/ctrl/Ctrl.ini"
draw_check
draw_combo_arrow
draw_spin
draw_list_items
draw_blue_skin
draw_black_skin
