import Velm.Theme

Label {
    dim: true
    font.pixelSize: Type.caption
}
