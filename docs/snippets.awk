# What lies between two marks starts at the edge of the page.
/\/\/! \[/ { match($0, /^ */); indent = RLENGTH }
{ print substr($0, 1, indent) ~ /^ *$/ ? substr($0, indent + 1) : $0 }
