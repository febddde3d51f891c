# Completes kovamo's commands, their options, what those take and the names of copies.
set -l commands export import balance list check copies restore
set -l no_command "not __fish_seen_subcommand_from $commands"

complete -c kovamo -n "$no_command" -a export -d 'Write the records to a file'
complete -c kovamo -n "$no_command" -a import -d 'Import the records of a file'
complete -c kovamo -n "$no_command" -a balance -d 'Print the balance of a time frame'
complete -c kovamo -n "$no_command" -a list -d 'Print the transactions of a time frame'
complete -c kovamo -n "$no_command" -a check -d 'Look for damage'
complete -c kovamo -n "$no_command" -a copies -d 'List the copies of the store'
complete -c kovamo -n "$no_command" -a restore -d 'Go back to a copy'
complete -c kovamo -n "$no_command" -l new-transaction -d 'Open the form for a new transaction'
complete -c kovamo -n "$no_command" -l all-transactions -d 'Open the list of all transactions'
complete -c kovamo -n "$no_command" -l demo -d 'Show sample data'
complete -c kovamo -n "$no_command" -l appearance -x -a 'light dark' -d 'Look like this'
complete -c kovamo -n "$no_command" -l pictures -r -d 'Draw every screen into this folder'
complete -c kovamo -n "$no_command" -s v -l version -d 'Print the version'
complete -c kovamo -s h -l help -d 'Print help'

complete -c kovamo -n "__fish_seen_subcommand_from $commands" -l store -r -d 'Work on this store'
complete -c kovamo -n '__fish_seen_subcommand_from export balance list' -l frame -x \
    -a 'current 3 12' -d 'The time frame'
complete -c kovamo -n '__fish_seen_subcommand_from export' -l format -x -a 'csv json ledger'
complete -c kovamo -n '__fish_seen_subcommand_from import' -l format -x -a 'csv json'
complete -c kovamo -n '__fish_seen_subcommand_from balance' -l format -x -a 'text json'
complete -c kovamo -n '__fish_seen_subcommand_from list' -l format -x -a 'text csv json'
complete -c kovamo -n '__fish_seen_subcommand_from import' -l dry-run -d 'Tell what would change'
complete -c kovamo -n '__fish_seen_subcommand_from import' -l skip-bad -d 'Skip bad lines'
complete -c kovamo -n '__fish_seen_subcommand_from import' -l columns -x -d 'Words of the header'
complete -c kovamo -n '__fish_seen_subcommand_from import' -l date-format -x -d 'How dates are written'
complete -c kovamo -n '__fish_seen_subcommand_from import' -l emoji -x -d 'Stands beside the records'
complete -c kovamo -n '__fish_seen_subcommand_from restore' -f \
    -a '(kovamo copies 2>/dev/null | string split -f 1 " ")'
complete -c kovamo -n '__fish_seen_subcommand_from balance list check copies' -f
