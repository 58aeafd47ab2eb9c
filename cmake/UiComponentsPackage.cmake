# Install rules of the packages "Platform" and "UiComponents", their config files and pkg-config files.
