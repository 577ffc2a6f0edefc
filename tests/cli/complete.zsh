# SPDX-License-Identifier: MIT
# usage: zsh -f complete.zsh FOLDER LINE WANTED   Types LINE and the tab key into an interactive zsh with the completions in
# FOLDER, and waits until it shows WANTED.
zmodload zsh/zpty
export TERM=xterm
zpty shell zsh -f -i
zpty -w shell "PROMPT= fpath=(${(q)1} \$fpath); autoload -U compinit && compinit -D -u && compdef _lumora lumora; print rea'dy'"
zpty -r shell shown '*ready*' || exit 1
zpty -w -n shell "$2"$'\t\t'
zpty -r shell shown "*$3*"
