#!/usr/bin/env bash
# Renders every picture of the library, of the gallery and of the Designer plug-in from the vector sources beside this
# script.
#
#   render.sh            rebuilds the images and their resource lists
#   render.sh --check    renders into a scratch folder and fails where the tree differs
#   render.sh --sheets   also lays out contact sheets in build/contact-sheets
#
# Needs rsvg-convert (librsvg2-bin), ImageMagick (imagemagick) and the Noto fonts (fonts-noto-cjk, fonts-noto-core).
# The same versions of these give the same bytes: no time stamps, no metadata.
set -euo pipefail
shopt -s globstar

art=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
top=$(cd "$art/../../.." && pwd)
library=CustomControls/resources
gallery=examples/gallery/resources
designer=designer/resources
mode=${1:-}
out=$top

# Pictures without an "@2x" twin.
single=(
    ico_current_arrow_down_nor ico_ttob_bg ico_scanning_right_inf_close
    icon_scanning_right_inf_dizuo icon_scanning_right_inf_maopi icon_scanning_right_inf_merial
    icon_scanning_right_inf_model icon_scanning_right_inf_processing icon_scanning_right_inf_tool
    icon_scanning_right_current_arrow_down img_high_precision img_low_precision img_medium_accuracy
    ico_sa_progress3 ico_sa_progress5 ico_warning_line_b_hover ico_warning_line_b_nor
)

# The loading ring: a turn in 24 frames of 60 ms, on the colour of the dialogs that show it. GIF knows no half
# transparency, so what the round corners cover in part is blended with that colour and the rest is left clear.
frames=24
delay=6
backdrop='#f6f6f6'

# The turning cutter: its flutes climb by one pitch of 24 in so many pictures.
turning_frames=12
turning_pitch=24

magick_convert=$(command -v convert-im6.q16 || command -v magick || command -v convert)
export SOURCE_DATE_EPOCH=0

png() { # source, target, zoom
    rsvg-convert --zoom "$3" --format png --output "$2.raw" "$1"
    "$magick_convert" "PNG:$2.raw" -strip -define png:exclude-chunks=all -define png:include-chunks=tRNS \
        -define png:color-type=6 -define png:compression-level=9 -define png:compression-filter=5 "PNG:$2"
    rm "$2.raw"
}

gif() { # source, target, zoom
    local scratch frame
    scratch=$(mktemp -d)
    for ((frame = 0; frame < frames; ++frame)); do
        sed "s/id=\"ring\" transform=\"rotate(0 /id=\"ring\" transform=\"rotate($((frame * 360 / frames)) /" "$1" \
            | rsvg-convert --zoom "$3" --format png --output "$scratch/$(printf %02d "$frame").png"
    done
    for frame in "$scratch"/??.png; do
        "$magick_convert" "$frame" \( +clone -alpha extract -threshold 12% -write mpr:mask +delete \) \
            -background "$backdrop" -alpha remove mpr:mask -alpha off -compose CopyOpacity -composite "$frame.flat.png"
    done
    "$magick_convert" -dispose none -delay "$delay" -loop 0 "$scratch"/*.flat.png \
        -strip +dither -colors 127 +map "GIF:$2"
    rm -r "$scratch"
}

turning() { # source, target folder, zooms of the twins
    local scratch frame zoom
    scratch=$(mktemp)
    mkdir -p "$2"
    for ((frame = 0; frame < turning_frames; ++frame)); do
        sed "s/id=\"flutes\" transform=\"translate(0 0)/id=\"flutes\" transform=\"translate(0 -$((frame * turning_pitch / turning_frames)))/" \
            "$1" > "$scratch"
        png "$scratch" "$2/$((frame + 1)).png" 1
        for zoom in $3; do
            png "$scratch" "$2/$((frame + 1))@${zoom}x.png" "$zoom"
        done
    done
    rm "$scratch"
}

render() { # source, target without extension, zoom
    mkdir -p "$(dirname "$2")"
    case $2 in
        */gif_*) gif "$1" "$2.gif" "$3" ;;
        *) png "$1" "$2.png" "$3" ;;
    esac
}

tree() { # folder of sources, target folder, zooms of the twins
    local source name zoom
    for source in "$1"/**/*.svg; do
        name=${source#"$1"/}
        name=${name%.svg}
        case $name in gallery/* | designer/*) [ "$1" = "$art" ] && continue ;; esac
        case $name in */turning) turning "$source" "$2/${name%/*}" "$3" && continue ;; esac
        render "$source" "$2/$name" 1
        [[ " ${single[*]} " == *" ${name##*/} "* ]] && continue
        for zoom in $3; do
            render "$source" "$2/$name@${zoom}x" "$zoom"
        done
    done
}

list() { # folder, name of the resource list, folders listed
    local folder=$1 name=$2 file
    shift 2
    {
        echo '<!DOCTYPE RCC>'
        echo '<RCC version="1.0">'
        echo '  <qresource prefix="/">'
        (cd "$folder" && find "$@" -type f \( -name '*.png' -o -name '*.gif' \)) | LC_ALL=C sort |
            while read -r file; do
                echo "    <file>$file</file>"
            done
        echo '  </qresource>'
        echo '</RCC>'
    } > "$folder/$name"
}

sheet() { # folder of pictures, target
    local tiles=() picture zoom columns=8
    for picture in "$1"/*.png "$1"/*.gif; do
        [ -e "$picture" ] || continue
        zoom=300%
        case $picture in *usb3*|*_bg*) zoom=100% ;; *material*|*img_pop*|*gif*|*tool_*) zoom=200% ;; esac
        case $picture in *@2x*) zoom=$((${zoom%\%} / 2))% ;; esac
        tiles+=(\( "${picture}[0]" -background '#f6f6f6' -alpha remove -filter point -resize "$zoom"
            -set label "$(basename "$picture")" \))
    done
    [ ${#tiles[@]} -eq 0 ] || "$(command -v montage-im6.q16 || command -v montage)" "${tiles[@]}" \
        -background '#f6f6f6' -geometry "+10+8" -tile "${columns}x" -pointsize 10 "$2"
}

[ "$mode" != --check ] || out=$(mktemp -d)
rm -rf "$out/$library/icon" "$out/$gallery"/{icon,mainwindow,gallery} "$out/$designer/customcontrols-designer"
mkdir -p "$out/$library" "$out/$gallery"
tree "$art" "$out/$library" 2
tree "$art/gallery" "$out/$gallery" "2 3"
tree "$art/designer" "$out/$designer" 2
list "$out/$library" CustomControls.qrc icon
list "$out/$gallery" gallery.qrc gallery icon mainwindow
list "$out/$designer" designer.qrc customcontrols-designer

case $mode in
    --check)
        diff -r "$out/$library/icon" "$top/$library/icon"
        diff "$out/$library/CustomControls.qrc" "$top/$library/CustomControls.qrc"
        diff -r "$out/$gallery" "$top/$gallery"
        diff -r "$out/$designer" "$top/$designer"
        rm -r "$out"
        echo 'the images match their sources'
        ;;
    --sheets)
        sheets=$top/build/contact-sheets
        mkdir -p "$sheets"
        cd "$top"
        for folder in "$library"/icon/**/ "$gallery"/**/ "$designer"/**/; do
            folder=${folder%/}
            name=${folder#CustomControls/resources/}
            sheet "$top/$folder" "$sheets/${name//\//_}.png"
        done
        ;;
esac
