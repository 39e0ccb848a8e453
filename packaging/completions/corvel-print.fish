# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
#
# fish completion for corvel-print.

# The words of the command line that name the printer.
function __corvel_print_printer
    set -l words (commandline -opc)
    for option in --printer --ppd
        if set -l place (contains -i -- $option $words)
            echo $option
            echo $words[(math $place + 1)]
        end
    end
    string match -- '--printer=*' $words
    string match -- '--ppd=*' $words
end

# KEY=CHOICE for everything that the printer has to choose.
function __corvel_print_choices
    corvel-print (__corvel_print_printer) --list-options --json 2>/dev/null | awk -F'"' '
        /^ +"keyword": / {
            match($0, /^ +/)
            if (RLENGTH > 8) choices[++count] = $4
            else { for (i = 1; i <= count; i++) print $4 "=" choices[i]; count = 0 }
        }'
end

complete -c corvel-print -s d -l printer -x -a 'built-in (corvel-print --list-printers 2>/dev/null | cut -f1,2)' -d 'A print queue, or the built-in printer'
complete -c corvel-print -l preset -x -d 'A preset of the printer'
complete -c corvel-print -l ppd -r -d 'The built-in printer, with this PPD instead of its own'
complete -c corvel-print -l mode -x -a 'constraint settings' -d 'When a conflicting choice is refused'
complete -c corvel-print -s n -l copies -x -d 'How many copies of each photo'
complete -c corvel-print -l title -x -d 'The title of the job'
complete -c corvel-print -l scaling -x -a 'fit fill actual' -d 'How large the photo is on the page'
complete -c corvel-print -l crop -x -d 'Which part of a cropped photo is kept'
complete -c corvel-print -l size -x -a '9x13cm 10x15cm 13x18cm 15x20cm 4x6in 5x7in 8x10in square passport wallet' -d 'The size of each print'
complete -c corvel-print -l scale -x -d 'The photo larger or smaller, in per cent'
complete -c corvel-print -l border -x -d 'A border around each photo, such as 3mm,black'
complete -c corvel-print -l layout -x -a 'single 1x2 2x2 3x3 fit contact strips pages:2 pages:4 pages:6 pages:9 pages:16 booklet' -d 'Several photos or pages on a sheet'
complete -c corvel-print -l pages -x -a 'all' -d 'Which pages of documents, such as 1-3,7,12-'
complete -c corvel-print -l page-set -x -a 'all odd even' -d 'Only pages with odd or even numbers'
complete -c corvel-print -l reverse -d 'Print the last sheet first'
complete -c corvel-print -l caption -x -a 'none name date both' -d 'What stands below each photo'
complete -c corvel-print -s o -l option -x -a '(__corvel_print_choices)' -d 'Choose for an option of the printer'
complete -c corvel-print -l output -x -a '(__fish_complete_directories)' -d 'Where the built-in printer leaves its files'
complete -c corvel-print -l one-pdf -x -d 'One PDF of all sheets'
complete -c corvel-print -l overwrite -d 'Replace files of an earlier run'
complete -c corvel-print -l batch -d 'No window: apply the options, print, exit'
complete -c corvel-print -l watch -x -a '(__fish_complete_directories)' -d 'Print each photo that arrives in the folder'
complete -c corvel-print -l printed -x -a '(__fish_complete_directories)' -d 'Where --watch moves printed photos'
complete -c corvel-print -l existing -d '--watch also prints the photos that are there at first'
complete -c corvel-print -l dry-run -d 'Show what --batch would send, and send nothing'
complete -c corvel-print -l no-check -d 'Print damaged photos as well'
complete -c corvel-print -l wait -x -d 'How long --batch follows its jobs at most, in seconds'
complete -c corvel-print -l server -x -a '(__fish_print_hostnames)' -d 'The print server to ask'
complete -c corvel-print -l list-printers -d 'List the printers'
complete -c corvel-print -l list-options -d 'List the options with their choices and panels'
complete -c corvel-print -l summary -d 'Show the job in words'
complete -c corvel-print -l json -d 'Lists, summary and --dry-run as JSON'
complete -c corvel-print -l preview -r -d 'Save a picture of the page as the window shows it'
complete -c corvel-print -l screenshot -x -a '(__fish_complete_directories)' -d 'Save a picture of the dialog with each panel'
complete -c corvel-print -l use-for-all-programs -d 'Have other programs print with this dialog'
complete -c corvel-print -l stop-using-for-all-programs -d 'Have other programs print with this dialog no longer'
complete -c corvel-print -s h -l help -d 'Show the help'
complete -c corvel-print -s v -l version -d 'Show the version'
