# Pages get the names that others refer to; what is said only to readers of the files goes.
1s/^# (Architecture|Styling|Accessibility|Performance)$/& {#\L\1}/
/^\(Read it in the reference/d
# What Doxygen would take for links: the names of style sheets ("#name", "::part"). Code and quotes are left alone.
/^( \*|    \/\/\/)?    /!{
    s/`(::[a-z-]+)`/<code>\\\1<\/code>/g
    :next
    s/^(([^"`]*("[^"]*"|`[^`]*`))*[^"`]*[ (,])(#[A-Za-z0-9]|::[a-z])/\1\\\4/
    t next
}
