# What Doxygen would take for links: the names of style sheets ("#name", "::part"). Code is left alone.
1s/^# (Architecture|Styling|Accessibility|Performance)$/& {#\L\1}/
/^( \*|    \/\/\/)?    /!{
    s/`(::[a-z-]+)`/<code>\\\1<\/code>/g
    s/([ (,])(#[A-Za-z0-9]|::[a-z])/\1\\\2/g
}
